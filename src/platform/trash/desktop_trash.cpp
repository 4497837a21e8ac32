#include "platform/trash/desktop_trash.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "platform/trash/directory_sizes.h"
#include "platform/trash/small_file.h"
#include "platform/trash/trash_entry.h"
#include "platform/trash/trash_info.h"
#include "platform/trash/trash_name.h"

namespace tidewell::trash {

namespace {

using link_free::Place;
using posix::Descriptor;

constexpr std::size_t infoLimit = std::size_t{64} * 1024;
constexpr auto sharedName = ".Trash";

std::string userNumber() {
    return std::to_string(::geteuid());
}

std::string ownName() {
    return ".Trash-" + userNumber();
}

std::string infoName(const std::string& entry) {
    return entry + std::string(trashInfoExtension);
}

/// Which paths the Trash's texts hold.
struct Origins {
    enum class Form { absolute, relative };
    Form form;
    std::string base;  ///< what relative ones start from
};

class DesktopTrash final : public OpenTrash {
 public:
    DesktopTrash(std::string path, Origins origins, Host host, Descriptor folder, Descriptor files,
                 Descriptor info)
        : path_(std::move(path)),
          origins_(std::move(origins)),
          host_(std::move(host)),
          folder_(std::move(folder)),
          files_(std::move(files)),
          info_(std::move(info)) {}

    const std::string& path() const override { return path_; }
    int entries() const override { return files_.get(); }
    std::string entriesPath() const override { return joinPath(path_, "files"); }

    OrProblem<TrashedItem> take(const SeenPlace& item, const Departure& departure) override {
        const auto limit = longestNameIn(files_.get()) - trashInfoExtension.size();
        const auto text =
            trashInfoText({.path = pathInInfo(departure.origin), .deletedAt = departure.date});
        for (int number = 1;; ++number) {
            const auto name = trashName(item.place.name, number, limit);
            const int error = takeAs(name, item, text);
            if (error == EEXIST) continue;
            if (error != 0) return problemOf(error);
            auto moved = describe(name).value_or(TrashedItem());
            if (moved.isFolder) updateSizes(name);
            moved.origin = departure.origin;
            return moved;
        }
    }

    void forget(const TrashedItem& item, const Place&) override {
        ::unlinkat(info_.get(), infoName(item.name).c_str(), 0);
        if (item.isFolder) updateSizes({});
    }

    std::vector<TrashedItem> items() const override {
        std::vector<TrashedItem> items;
        for (const auto& name : sortedNames(files_.get()))
            if (auto item = describe(name)) items.push_back(*std::move(item));
        return items;
    }

    std::vector<std::string> notes() const override { return sortedNames(info_.get()); }

    void dropOrphans(const std::vector<std::string>& notes) override {
        for (const auto& note : notes) {
            const auto isNote = std::string_view(note).ends_with(trashInfoExtension);
            const auto entry =
                note.substr(0, note.size() - std::min(note.size(), trashInfoExtension.size()));
            if (isNote && !entry.empty() && !trashEntry(files_.get(), entry) && errno == ENOENT)
                ::unlinkat(info_.get(), note.c_str(), 0);
        }
        updateSizes({});
    }

 private:
    /// The text comes first: whoever looks in between sees one without an entry, which is nothing,
    /// and never an entry of which nobody knows where it came from.
    int takeAs(const std::string& name, const SeenPlace& item, const std::string& text) {
        int error = writeNewFile(info_.get(), infoName(name), text);
        if (error != 0) return error;
        error = moveWithoutOverwriting(item, files_.get(), name, Detour::overPlaceholder);
        if (error != 0) ::unlinkat(info_.get(), infoName(name).c_str(), 0);
        return error;
    }

    std::optional<TrashedItem> describe(const std::string& name) const {
        auto item = trashEntry(files_.get(), name);
        if (!item) return std::nullopt;
        item->folder = path_;
        item->path = joinPath(entriesPath(), name);
        const auto text = readSmallFile(info_.get(), infoName(name), infoLimit);
        const auto info = text ? parseTrashInfo(*text) : std::nullopt;
        item->origin = info ? originIn(*info) : std::nullopt;
        item->deletedAt = info ? info->deletedAt : std::nullopt;
        return item;
    }

    std::string pathInInfo(const std::string& origin) const {
        return origins_.form == Origins::Form::absolute
                   ? origin
                   : std::string(pathRelativeTo(origin, origins_.base));
    }

    /// A volume that came from elsewhere may name only what lies on it.
    std::optional<std::string> originIn(const TrashInfo& info) const {
        if (!info.path.starts_with('/')) return joinPath(origins_.base, info.path);
        if (origins_.form == Origins::Form::relative) return std::nullopt;
        return host_.pathNamedInside(info.path);
    }

    void updateSizes(const std::string& added) const {
        updateDirectorySizes(folder_.get(), files_.get(), info_.get(), added);
    }

    std::string path_;
    Origins origins_;
    Host host_;
    Descriptor folder_;
    Descriptor files_;
    Descriptor info_;
};

/// The Trash `name` in `parent`, with both of its folders.
OpenedTrash openTrash(int parent, const std::string& name, std::string path, Origins origins,
                      const Host& host, NewFolders& folders) {
    auto folder = folders.openOwn(parent, name);
    if (const auto* problem = std::get_if<Problem>(&folder)) return *problem;
    auto& opened = std::get<Descriptor>(folder);
    auto files = folders.openOwn(opened.get(), "files");
    if (const auto* problem = std::get_if<Problem>(&files)) return *problem;
    auto info = folders.openOwn(opened.get(), "info");
    if (const auto* problem = std::get_if<Problem>(&info)) return *problem;
    return std::make_unique<DesktopTrash>(std::move(path), std::move(origins), host,
                                          std::move(opened), std::get<Descriptor>(std::move(files)),
                                          std::get<Descriptor>(std::move(info)));
}

/// One that was not made for all, in which nobody can touch another's, is none.
Descriptor openShared(int top) {
    Descriptor shared(::openat(top, sharedName, posix::openFolderFlags));
    struct stat status;
    if (!shared || ::fstat(shared.get(), &status) != 0 || !(status.st_mode & S_ISVTX)) return {};
    return shared;
}

/// The names of the two places at the top of a volume, the shared one first.
std::string sharedPlace(const std::string& top) {
    return joinPath(joinPath(top, sharedName), userNumber());
}

std::string ownPlace(const std::string& top) {
    return joinPath(top, ownName());
}

Origins relativeTo(const std::string& top) {
    return {.form = Origins::Form::relative, .base = top};
}

}  // namespace

DesktopTrashLayout::DesktopTrashLayout(const Host& host)
    : host_(host), older_(host.home, MacosTrashLayout::Shown::whatHasAnOrigin) {}

OpenedTrash DesktopTrashLayout::openHome(NewFolders& folders) const {
    const auto data = openData(folders);
    if (const auto* problem = std::get_if<Problem>(&data)) return *problem;
    const auto& [path, folder] = std::get<VolumeTop>(data);
    return openTrash(folder.get(), "Trash", joinPath(path, "Trash"),
                     {.form = Origins::Form::absolute, .base = path}, host_, folders);
}

OrProblem<VolumeTop> DesktopTrashLayout::openData(NewFolders& folders) const {
    constexpr mode_t privateFolder = 0700;
    if (!isBelow(host_.baseFolders.data, host_.home))
        return refusal("The folder of the Trash does not lie in the home folder.");
    auto path = host_.home;
    auto folder = link_free::openPlace(path);
    if (!folder) return problemOf(errno);
    for (const auto piece : pathPieces(pathRelativeTo(host_.baseFolders.data, host_.home))) {
        const std::string name(piece);
        auto next = folders.openPlace(folder.get(), name, privateFolder);
        const auto* problem = std::get_if<Problem>(&next);
        const bool isLast = joinPath(path, name) == host_.baseFolders.data;
        if (problem && problem->error == ENOTDIR && isLast)
            return openDataBehind({.folder = std::move(folder), .name = name}, path);
        if (problem) return *problem;
        folder = std::get<Descriptor>(std::move(next));
        path = joinPath(path, name);
    }
    return VolumeTop{.path = std::move(path), .folder = std::move(folder)};
}

/// People who keep such folders elsewhere put a link in their place. It is followed once, to what
/// is theirs.
OrProblem<VolumeTop> DesktopTrashLayout::openDataBehind(const Place& link,
                                                        const std::string& linkFolder) const {
    char target[4096];
    const auto length = ::readlinkat(link.folder.get(), link.name.c_str(), target, sizeof target);
    if (length <= 0 || static_cast<std::size_t>(length) == sizeof target)
        return refusal("The folder of the Trash is none.");
    const std::string named(target, static_cast<std::size_t>(length));
    auto path = named.starts_with('/') ? host_.pathNamedInside(standardizedPath(named))
                                       : standardizedPath(joinPath(linkFolder, named));
    auto folder = link_free::openPlace(path);
    if (!folder || !isOwnGround(path, folder))
        return refusal("The folder of the Trash is a link that leads to nothing of yours.");
    return VolumeTop{.path = std::move(path), .folder = std::move(folder)};
}

/// Below the home folder, or on another disk that is all the user's.
bool DesktopTrashLayout::isOwnGround(const std::string& path, const Descriptor& folder) const {
    const auto isOwn = [](const Descriptor& place) {
        struct stat status;
        return place && ::fstat(place.get(), &status) == 0 && status.st_uid == ::geteuid();
    };
    if (!isOwn(folder) || !isBelow(path, host_.root)) return false;
    if (isBelow(path, host_.home)) return true;
    const auto volume = topOfVolume(path, folder.get(), host_.root);
    return isOwn(volume.folder) && !isAtOrBelow(host_.home, volume.path);
}

OpenedTrash DesktopTrashLayout::openOfVolume(const VolumeTop& volume, NewFolders& folders) const {
    if (const auto shared = openShared(volume.folder.get())) {
        auto opened = openTrash(shared.get(), userNumber(), sharedPlace(volume.path),
                                relativeTo(volume.path), host_, folders);
        if (!std::holds_alternative<Problem>(opened)) return opened;
    }
    return openTrash(volume.folder.get(), ownName(), ownPlace(volume.path), relativeTo(volume.path),
                     host_, folders);
}

std::vector<std::string> DesktopTrashLayout::homePlaces() const {
    auto places = older_.homePlaces();
    NewFolders none(Making::never);
    const auto data = openData(none);
    if (const auto* found = std::get_if<VolumeTop>(&data))
        places.insert(places.begin(), joinPath(found->path, "Trash"));
    return places;
}

std::vector<std::string> DesktopTrashLayout::placesOfVolume(const std::string& top) const {
    return {sharedPlace(top), ownPlace(top)};
}

OpenedTrash DesktopTrashLayout::openAt(const std::string& place) const {
    if (place == older_.homePlaces().front()) return older_.openAt(place);
    const auto found = link_free::openPlaceOf(place);
    if (!found.folder) return problemOf(errno);
    NewFolders none(Making::never);
    const std::string folder(parentPath(place));
    const std::string above(parentPath(folder));
    auto origins = Origins{.form = Origins::Form::absolute, .base = folder};
    if (place == ownPlace(folder)) origins = relativeTo(folder);
    if (place == sharedPlace(above)) {
        const auto top = link_free::openPlace(above);
        if (!top || !openShared(top.get())) return refusal("The Trash of its disk is not safe.");
        origins = relativeTo(above);
    }
    return openTrash(found.folder.get(), found.name, place, std::move(origins), host_, none);
}

void DesktopTrashLayout::gather() const {
    const auto place = older_.homePlaces().front();
    const auto older = openAt(place);
    if (std::holds_alternative<Problem>(older)) return;
    const auto& from = *std::get<std::unique_ptr<OpenTrash>>(older);
    const auto items = from.items();
    if (items.empty()) return;
    NewFolders folders(Making::whereMissing);
    const auto opened = openHome(folders);
    if (std::holds_alternative<Problem>(opened)) return;
    auto& to = *std::get<std::unique_ptr<OpenTrash>>(opened);
    for (const auto& item : items) {
        const SeenPlace seen{
            .place = {.folder = Descriptor(::fcntl(from.entries(), F_DUPFD_CLOEXEC, 0)),
                      .name = item.name},
            .folderPath = place};
        const auto taken =
            to.take(seen, {.origin = *item.origin, .date = item.deletedAt.value_or(Date())});
        if (const auto* moved = std::get_if<TrashedItem>(&taken)) {
            forgetOrigin(to.entries(), moved->name);
            folders.keep();
        }
    }
    const auto home = link_free::openPlace(host_.home);
    ::unlinkat(home.get(), std::string(lastPathComponent(place)).c_str(), AT_REMOVEDIR);
}

}  // namespace tidewell::trash
