#include "platform/trash/macos_trash.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/path_text.h"
#include "platform/posix/folder_listing.h"
#include "platform/trash/exclusive_move.h"
#include "platform/trash/trash_entry.h"
#include "platform/trash/trash_name.h"

namespace tidewell::trash {

namespace {

using link_free::Place;
using posix::Descriptor;

constexpr auto homeTrashName = ".Trash";
constexpr auto volumeTrashesName = ".Trashes";

using Shown = MacosTrashLayout::Shown;

class MacosTrash final : public OpenTrash {
 public:
    MacosTrash(std::string path, Descriptor folder, Shown shown)
        : path_(std::move(path)), folder_(std::move(folder)), shown_(shown) {}

    const std::string& path() const override { return path_; }
    int entries() const override { return folder_.get(); }
    std::string entriesPath() const override { return path_; }

    OrProblem<TrashedItem> take(const SeenPlace& item, const Departure& departure) override {
        const auto limit = longestNameIn(folder_.get());
        for (int number = 1;; ++number) {
            const auto name = trashName(item.place.name, number, limit);
            const int error =
                moveWithoutOverwriting(item, folder_.get(), name, Detour::overPlaceholder);
            if (error == EEXIST) continue;
            if (error != 0) return problemOf(error);
            noteOrigin(folder_.get(), name, departure.origin);
            auto moved = describe(name).value_or(TrashedItem());
            moved.origin = departure.origin;
            return moved;
        }
    }

    void forget(const TrashedItem&, const Place& place) override {
        forgetOrigin(place.folder.get(), place.name);
    }

    std::vector<TrashedItem> items() const override {
        std::vector<TrashedItem> items;
        for (const auto& name : sortedNames(folder_.get()))
            if (auto item = describe(name); item && (item->origin || shown_ == Shown::everything))
                items.push_back(*std::move(item));
        return items;
    }

 private:
    std::optional<TrashedItem> describe(const std::string& name) const {
        auto item = trashEntry(folder_.get(), name);
        if (!item) return std::nullopt;
        item->folder = path_;
        item->path = joinPath(path_, name);
        item->origin = notedOrigin(folder_.get(), name);
        return item;
    }

    std::string path_;
    Descriptor folder_;
    Shown shown_;
};

OpenedTrash trashAt(std::string path, OrProblem<Descriptor> folder, Shown shown) {
    if (const auto* problem = std::get_if<Problem>(&folder)) return *problem;
    return std::make_unique<MacosTrash>(std::move(path), std::get<Descriptor>(std::move(folder)),
                                        shown);
}

/// All users of a volume have their Trash in one folder, in which nobody can touch another's.
OrProblem<Descriptor> openShared(int top, NewFolders& folders) {
    constexpr mode_t shared = S_ISVTX | 0777;
    auto opened = folders.open(top, volumeTrashesName, shared);
    if (std::holds_alternative<Problem>(opened)) return opened;
    const auto& folder = std::get<Descriptor>(opened);
    struct stat status;
    if (::fstat(folder.get(), &status) != 0) return problemOf(errno);
    if (folders.madeLast(volumeTrashesName) && ::fchmod(folder.get(), shared) == 0)
        status.st_mode |= shared;  // the process may withhold rights from what it makes
    if (status.st_uid != 0 && status.st_uid != ::geteuid())
        return refusal("The Trash of its disk belongs to somebody else.");
    if (!(status.st_mode & S_ISVTX))
        return refusal("In the Trash of its disk everybody could touch what is yours.");
    return opened;
}

std::string ownTrashName() {
    return std::to_string(::geteuid());
}

}  // namespace

OpenedTrash MacosTrashLayout::openHome(NewFolders& folders) const {
    const auto home = link_free::openPlace(home_);
    if (!home) return problemOf(errno);
    return trashAt(joinPath(home_, homeTrashName), folders.openOwn(home.get(), homeTrashName),
                   shown_);
}

OpenedTrash MacosTrashLayout::openOfVolume(const VolumeTop& volume, NewFolders& folders) const {
    const auto shared = openShared(volume.folder.get(), folders);
    if (const auto* problem = std::get_if<Problem>(&shared)) return *problem;
    return trashAt(placesOfVolume(volume.path).front(),
                   folders.openOwn(std::get<Descriptor>(shared).get(), ownTrashName()), shown_);
}

std::vector<std::string> MacosTrashLayout::homePlaces() const {
    return {joinPath(home_, homeTrashName)};
}

std::vector<std::string> MacosTrashLayout::placesOfVolume(const std::string& top) const {
    return {joinPath(joinPath(top, volumeTrashesName), ownTrashName())};
}

OpenedTrash MacosTrashLayout::openAt(const std::string& place) const {
    const auto found = link_free::openPlaceOf(place);
    if (!found.folder) return problemOf(errno);
    NewFolders none(Making::never);
    return trashAt(place, none.openOwn(found.folder.get(), found.name), shown_);
}

}  // namespace tidewell::trash
