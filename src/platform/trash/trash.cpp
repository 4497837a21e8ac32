#include "platform/trash.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

#include "platform/dates.h"
#include "platform/path_text.h"
#include "platform/removal.h"
#include "platform/trash/trash_entry.h"
#include "platform/trash/trash_layout.h"
#include "platform/trash/volumes.h"

namespace tidewell {

namespace {

using link_free::Place;
using posix::Descriptor;
using trash::Making;
using trash::NewFolders;
using trash::OpenedTrash;
using trash::OpenTrash;
using trash::OrProblem;
using trash::Problem;
using trash::problemOf;
using trash::refusal;
using trash::SeenPlace;
using Taken = OrProblem<TrashedItem>;

const Problem* problemIn(const auto& result) {
    return std::get_if<Problem>(&result);
}

/// In somebody else's home folder a Trash would be made that he could not use.
bool isOwnFolder(const std::string& path) {
    const auto folder = link_free::openPlace(path);
    struct stat status;
    return folder && ::fstat(folder.get(), &status) == 0 && status.st_uid == ::geteuid();
}

/// Into the Trash that `open` opens with the folders that it may make.
Taken moveInto(const auto& open, const SeenPlace& item, const std::string& path) {
    NewFolders folders(Making::whereMissing);
    const OpenedTrash opened = open(folders);
    if (const auto* problem = problemIn(opened)) return *problem;
    auto& trash = *std::get<std::unique_ptr<OpenTrash>>(opened);
    if (isAtOrBelow(trash.path(), path)) return refusal("The Trash itself lies in it.");
    auto taken = trash.take(item, {.origin = path, .date = now()});
    if (!problemIn(taken)) folders.keep();
    return taken;
}

Taken moveToTrashOrSayWhy(const std::string& path, const Host& host) {
    SeenPlace item{.place = link_free::openPlaceOf(path),
                   .folderPath = std::string(parentPath(path))};
    if (!item.place.folder) return problemOf(errno);
    if (!isOwnFolder(host.home)) return refusal("The home folder belongs to somebody else.");
    const auto layout = trash::layoutOf(host);
    auto taken =
        moveInto([&](NewFolders& folders) { return layout->openHome(folders); }, item, path);
    const auto* problem = problemIn(taken);
    if (!problem || problem->error != EXDEV) return taken;
    const auto volume = trash::topOfVolume(item.folderPath, item.place.folder.get(), host.root);
    return moveInto([&](NewFolders& folders) { return layout->openOfVolume(volume, folders); },
                    item, path);
}

/// Without ".", ".." and the like, so that its text says where it leads.
bool isPlainPath(std::string_view path) {
    return path.size() > 1 && path.front() == '/' && path.find('\0') == std::string_view::npos &&
           standardizedPath(path) == path;
}

OrProblem<Place> placeFor(const std::string& path, NewFolders& folders) {
    constexpr mode_t asUsual = 0777;
    auto folder = link_free::openPlace("/");
    for (const auto piece : pathPieces(parentPath(path))) {
        auto next = folders.openPlace(folder.get(), std::string(piece), asUsual);
        if (const auto* problem = problemIn(next)) return *problem;
        folder = std::get<Descriptor>(std::move(next));
    }
    return Place{.folder = std::move(folder), .name = std::string(lastPathComponent(path))};
}

OrProblem<std::string> originOf(const TrashedItem& item, const std::string& volume,
                                const Host& host) {
    if (!item.origin) return refusal("The Trash does not say where it came from.");
    const auto& origin = *item.origin;
    if (!isPlainPath(origin) || isAtOrBelow(origin, item.folder))
        return refusal("The Trash names no place that it can have come from.");
    if (!isBelow(origin, host.root)) return refusal("It came from outside of this machine.");
    if (!isBelow(origin, host.home) && !isBelow(origin, volume))
        return refusal("It came from another disk than the one on which it lies now.");
    return origin;
}

OrProblem<std::string> putBackOrSayWhy(const TrashedItem& item, const Host& host) {
    const auto opened = trash::layoutOf(host)->openAt(item.folder);
    if (const auto* problem = problemIn(opened)) return *problem;
    auto& trash = *std::get<std::unique_ptr<OpenTrash>>(opened);
    const auto entry = trash::trashEntry(trash.entries(), item.name);
    if (!entry || entry->identity != item.identity)
        return refusal("It is not in the Trash any more.");
    const auto volume = trash::topOfVolume(item.folder, trash.entries(), host.root);
    const auto origin = originOf(item, volume.path, host);
    if (const auto* problem = problemIn(origin)) return *problem;
    NewFolders folders(Making::whereMissing);
    const auto place = placeFor(std::get<std::string>(origin), folders);
    if (const auto* problem = problemIn(place)) return *problem;
    const auto& to = std::get<Place>(place);
    const SeenPlace from{
        .place = {.folder = Descriptor(::fcntl(trash.entries(), F_DUPFD_CLOEXEC, 0)),
                  .name = item.name},
        .folderPath = std::string(parentPath(item.path))};
    const int error =
        trash::moveWithoutOverwriting(from, to.folder.get(), to.name, trash::Detour::byLink);
    if (error != 0) return problemOf(error);
    folders.keep();
    trash.forget(item, to);
    return origin;
}

/// Those of the home folder first.
std::vector<std::unique_ptr<OpenTrash>> existingTrashes(const Host& host) {
    const auto layout = trash::layoutOf(host);
    auto places = layout->homePlaces();
    for (const auto& disk : trash::mountedDisks(host.root))
        std::ranges::move(layout->placesOfVolume(disk), std::back_inserter(places));
    std::vector<std::unique_ptr<OpenTrash>> trashes;
    for (const auto& place : places) {
        auto opened = layout->openAt(place);
        if (auto* found = std::get_if<std::unique_ptr<OpenTrash>>(&opened))
            trashes.push_back(std::move(*found));
    }
    return trashes;
}

}  // namespace

Trashing moveToTrash(const TrashablePath& item, const Host& host) {
    auto taken = moveToTrashOrSayWhy(item.real(), host);
    if (const auto* problem = problemIn(taken)) return {.moved = {}, .problem = problem->sentence};
    return {.moved = std::get<TrashedItem>(std::move(taken)), .problem = {}};
}

PuttingBack putBack(const TrashedItem& item, const Host& host) {
    auto place = putBackOrSayWhy(item, host);
    if (const auto* problem = problemIn(place)) return {.place = {}, .problem = problem->sentence};
    return {.place = std::get<std::string>(std::move(place)), .problem = {}};
}

std::vector<TrashedItem> trashedItems(const Host& host) {
    std::vector<TrashedItem> items;
    for (const auto& trash : existingTrashes(host))
        std::ranges::move(trash->items(), std::back_inserter(items));
    return items;
}

std::vector<std::string> trashFolders(const Host& host) {
    std::vector<std::string> folders;
    for (const auto& trash : existingTrashes(host)) folders.push_back(trash->entriesPath());
    return folders;
}

Removal emptyTrash(const DeletablePath& entries, const ChildGuard& guard, const Host& host) {
    auto trashes = existingTrashes(host);
    const auto own = std::ranges::find_if(
        trashes, [&entries](const auto& trash) { return trash->entriesPath() == entries.real(); });
    if (own == trashes.end()) return Removal::incomplete;
    // What another program notes from now on is about an entry that is still to come.
    const auto notes = (*own)->notes();
    const auto result = emptyFolder(entries, guard);
    (*own)->dropOrphans(notes);
    return result;
}

}  // namespace tidewell
