#include "cleanup/disk_scanner.h"

#include <algorithm>
#include <array>
#include <exception>
#include <utility>
#include <vector>

#include "cleanup/cache_signs.h"
#include "cleanup/running_check.h"
#include "cleanup/sweep_obstacles.h"
#include "cleanup/target_catalogue.h"
#include "platform/files.h"
#include "platform/freed_usage.h"
#include "platform/path_text.h"
#include "platform/trash.h"
#include "platform/volume.h"

namespace tidewell {

namespace {

/// A target's measure while it grows: the paths that hold something, and their sizes together.
struct Found {
    std::vector<std::string> paths;
    std::vector<DiskUsage> measures;
    DiskUsage sum;

    void add(std::string path, MeasuredFolders* known) {
        auto usage = known ? diskUsage(path, *known) : diskUsage(path);
        sum.unread.add(usage.unread);
        if (usage.bytes < 1) return;
        sum.bytes = addSaturating(sum.bytes, usage.bytes);
        sum.linkedBytes = addSaturating(sum.linkedBytes, usage.linkedBytes);
        paths.push_back(std::move(path));
        measures.push_back(std::move(usage));
    }
};

/// Whether one of a swept folder's entries has a row of its own.
bool isClaimed(std::string_view name, const std::set<std::string, std::less<>>& pieces) {
    return std::ranges::any_of(pieces,
                               [name](const std::string& piece) { return standsFor(piece, name); });
}

/// Whether what is tagged in a swept folder goes with a row of its own.
bool isSweptByTag(std::string_view sweptFolder, const Host& host) {
    for (const auto& row : catalogueOf(host.system).rows)
        if (row.kind == TargetKind::taggedSweep)
            for (const auto stored : row.paths)
                if (TablePath(stored, host).base() == sweptFolder) return true;
    return false;
}

/// Whether a program works with the item that did not when the user ticked it.
bool hasStartedSince(const CleanupItem& item, const Host& host) {
    const auto& known = item.runningPrograms;
    return std::ranges::any_of(runningProgramsOf(item, host), [&known](const auto& name) {
        return std::ranges::find(known, name) == known.end();
    });
}

/// Of an item that no scan has made, any path may hold all of it.
DiskUsage measureAtScan(const CleanupItem& item, std::size_t path) {
    if (path < item.measures.size()) return item.measures[path];
    return {.bytes = item.sizeBytes, .unread = {}};
}

/// What several paths hold, and what would be freed with all of it: that is less where files have
/// names elsewhere, too.
struct Holding {
    std::vector<DiskUsage> measures;
    FreedUsage together;
};

Holding heldBy(const std::vector<std::string>& paths, System system) {
    Holding holding;
    DiskUsage sum;
    for (const auto& path : paths) {
        const auto& usage = holding.measures.emplace_back(diskUsage(path));
        sum.bytes = addSaturating(sum.bytes, usage.bytes);
        sum.linkedBytes = addSaturating(sum.linkedBytes, usage.linkedBytes);
    }
    holding.together = freedUsage(paths, sum, system);
    return holding;
}

/// Where links count truly all is measured anew: what goes with one item may have become the last
/// name of a file in another.
Holding heldBefore(const CleanupItem& item, System system) {
    if (system == System::linux) return heldBy(item.resolvedPaths, system);
    Holding atScan{.measures = {}, .together = {.freedBytes = item.sizeBytes}};
    for (std::size_t i = 0; i < item.resolvedPaths.size(); ++i)
        atScan.measures.push_back(measureAtScan(item, i));
    return atScan;
}

/// What could not be read at the scan either is in no figure.
ByteCount mayBeLeft(const DiskUsage& now, const DiskUsage& atScan) {
    return now.unread.areAmong(atScan.unread) ? now.bytes : std::max(now.bytes, atScan.bytes);
}

/// The home folder's own is among the places that the row names.
std::vector<std::string> withTrashesElsewhere(std::vector<std::string> places, const Host& host) {
    for (auto& folder : trashFolders(host)) {
        const bool isNamed = std::ranges::any_of(
            places, [&folder](const auto& place) { return resolvedPath(place) == folder; });
        if (!isNamed) places.push_back(std::move(folder));
    }
    return places;
}

}  // namespace

DiskScanner::DiskScanner(Host host) : host_(std::move(host)), guard_(host_) {}

std::optional<CleanupItem> DiskScanner::measure(const CleanupTarget& target, MeasuredFolders* known,
                                                UnreadThings* unread) const {
    Found found;
    for (auto& path : placesOf(target)) found.add(std::move(path), known);
    if (unread) unread->add(found.sum.unread);
    if (found.paths.empty()) return std::nullopt;
    const auto together = freedUsage(found.paths, found.sum, host_.system);
    return CleanupItem{.target = target,
                       .resolvedPaths = std::move(found.paths),
                       .measures = std::move(found.measures),
                       .sizeBytes = together.freedBytes,
                       .sharedBytes = together.sharedBytes,
                       .isSelected = target.safety == SafetyLevel::safe};
}

std::vector<std::string> DiskScanner::placesOf(const CleanupTarget& target) const {
    auto places = existingPlaces(target.paths, host_);
    switch (target.kind) {
        case TargetKind::plain:
            return places;
        case TargetKind::trash:
            return withTrashesElsewhere(std::move(places), host_);
        case TargetKind::sweep:
        case TargetKind::taggedSweep:
            break;
    }
    std::vector<std::string> swept;
    const SweepObstacles obstacles(host_);
    for (const auto& folder : places)
        std::ranges::move(sweptChildren(folder, target.kind, obstacles), std::back_inserter(swept));
    return swept;
}

std::vector<std::string> DiskScanner::sweptChildren(const std::string& sweptFolder, TargetKind kind,
                                                    const SweepObstacles& obstacles) const {
    const auto claimed = sweepExclusions(sweptFolder);
    const auto never = neverSweptPaths(host_);
    const bool looksInside = catalogueOf(host_.system).sweepCare == SweepCare::byContent;
    const bool hasTagged = isSweptByTag(sweptFolder, host_);
    std::vector<std::string> children;
    for (const auto& name : folderNames(sweptFolder).value_or(std::vector<std::string>{})) {
        auto child = joinPath(sweptFolder, name);
        if (isClaimed(name, claimed) || covers(never, standardizedPath(child))) continue;
        const bool isTagged = hasTagged && isTaggedCache(child);
        if (isTagged != (kind == TargetKind::taggedSweep)) continue;
        if (looksInside && holdsVirtualEnvironment(child)) continue;
        if (obstacles.standIn(child)) continue;
        children.push_back(std::move(child));
    }
    return children;
}

std::set<std::string, std::less<>> DiskScanner::sweepExclusions(
    std::string_view sweptFolder) const {
    const auto folder = standardizedPath(host_.expand(sweptFolder));
    std::set<std::string, std::less<>> claimed;
    for (const auto& path : claimedPaths(host_))
        if (auto name = path.nameDirectlyIn(folder)) claimed.insert(std::move(*name));
    return claimed;
}

DiskScanner::CleanResult DiskScanner::clean(const CleanupItem& item) const {
    if (hasStartedSince(item, host_)) return {.freedBytes = 0, .failedTitle = item.target.title};
    const auto before = heldBefore(item, host_.system);
    const auto inUse = newlyInUse(item);
    auto outcome = Removal::complete;
    for (const auto& path : item.resolvedPaths)
        if (inUse.contains(path) || attempt(path) == Removal::incomplete)
            outcome = Removal::incomplete;
    const auto after = heldBy(item.resolvedPaths, host_.system);
    auto left = after.together.freedBytes;
    for (std::size_t i = 0; i < item.resolvedPaths.size(); ++i) {
        const auto& now = after.measures[i];
        left = addSaturating(left, mayBeLeft(now, before.measures[i]) - now.bytes);
        if (!now.unread.isEmpty()) outcome = Removal::incomplete;
    }
    CleanResult result{.freedBytes = std::max<ByteCount>(before.together.freedBytes - left, 0),
                       .failedTitle = std::nullopt};
    if (outcome == Removal::incomplete) result.failedTitle = item.target.title;
    return result;
}

std::set<std::string> DiskScanner::newlyInUse(const CleanupItem& item) const {
    std::set<std::string> paths;
    if (!item.target.isSweep()) return paths;
    const SweepObstacles obstacles(host_);
    for (const auto& path : item.resolvedPaths)
        if (obstacles.standIn(path)) paths.insert(path);
    return paths;
}

/// A path for which the memory does not suffice stays, and stops no other: what went is counted.
Removal DiskScanner::attempt(const std::string& path) const {
    try {
        return cleanPath(path);
    } catch (const std::exception&) {
        return Removal::incomplete;
    }
}

Removal DiskScanner::cleanPath(const std::string& path) const {
    const auto kind = fileKind(path);
    if (kind == FileKind::missing)
        return allows(guard_.verdict(path)) ? Removal::complete : Removal::incomplete;
    if (kind == FileKind::untold) return Removal::incomplete;
    const auto approved = guard_.approve(path);
    if (!approved) return Removal::incomplete;
    if (kind == FileKind::other) return removeItem(*approved);
    const auto children = guard_.childGuard(*approved);
    const auto trashes = trashFolders(host_);
    const bool isTrash = std::ranges::find(trashes, approved->real()) != trashes.end();
    return isTrash ? emptyTrash(*approved, children, host_) : emptyFolder(*approved, children);
}

ByteCount DiskScanner::availableCapacity() const {
    const auto capacity = volumeCapacity(host_.home);
    return capacity ? capacity->available : 0;
}

}  // namespace tidewell
