#include "cleanup/disk_scanner.h"

#include <algorithm>
#include <array>
#include <exception>
#include <utility>
#include <vector>

#include "cleanup/target_catalogue.h"
#include "platform/disk_usage.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/trash.h"
#include "platform/volume.h"

namespace tidewell {

namespace {

/// Entries that a sweep never touches, in either swept folder: other programs' state that only
/// looks like a cache.
constexpr std::array<std::string_view, 6> sweepAlwaysExcluded = {
    "CloudKit", "com.apple.HomeKit", "FamilyCircle", "huggingface", "torch", "lm-studio",
};

/// A target's measure while it grows: the paths that hold something, and their sizes together.
struct Found {
    std::vector<std::string> paths;
    std::vector<DiskUsage> measures;
    ByteCount size = 0;
    ByteCount linked = 0;

    void add(std::string path, MeasuredFolders* known) {
        auto usage = known ? diskUsage(path, *known) : diskUsage(path);
        if (usage.bytes < 1) return;
        size = addSaturating(size, usage.bytes);
        linked = addSaturating(linked, usage.linkedBytes);
        paths.push_back(std::move(path));
        measures.push_back(std::move(usage));
    }
};

std::string standardForm(std::string_view path, const Host& host) {
    return standardizedPath(host.expand(path));
}

bool isNeverSwept(std::string_view name) {
    return std::ranges::find(sweepAlwaysExcluded, name) != sweepAlwaysExcluded.end();
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
    ByteCount linked = 0;
    for (const auto& path : paths) {
        const auto& usage = holding.measures.emplace_back(diskUsage(path));
        linked = addSaturating(linked, usage.linkedBytes);
        holding.together.freedBytes = addSaturating(holding.together.freedBytes, usage.bytes);
    }
    if (system == System::linux && linked > 0) holding.together = freedByRemoving(paths);
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

}  // namespace

DiskScanner::DiskScanner(Host host) : host_(std::move(host)), guard_(host_) {}

std::optional<CleanupItem> DiskScanner::measure(const CleanupTarget& target,
                                                MeasuredFolders* known) const {
    Found found;
    for (const auto& stored : target.paths) {
        const auto path = host_.expand(stored);
        if (!fileExists(path)) continue;
        switch (target.kind) {
            case TargetKind::plain:
                found.add(path, known);
                break;
            case TargetKind::sweep:
                for (auto& child : sweptChildren(path)) found.add(std::move(child), known);
                break;
        }
    }
    if (found.paths.empty()) return std::nullopt;
    FreedUsage together{.freedBytes = found.size};
    if (host_.system == System::linux && found.linked > 0) together = freedByRemoving(found.paths);
    return CleanupItem{.target = target,
                       .resolvedPaths = std::move(found.paths),
                       .measures = std::move(found.measures),
                       .sizeBytes = together.freedBytes,
                       .sharedBytes = together.sharedBytes,
                       .isSelected = target.safety == SafetyLevel::safe};
}

std::vector<std::string> DiskScanner::sweptChildren(const std::string& sweptFolder) const {
    const auto claimed = sweepExclusions(sweptFolder);
    std::vector<std::string> children;
    for (const auto& name : folderNames(sweptFolder).value_or(std::vector<std::string>{}))
        if (!claimed.contains(name) && !isNeverSwept(name))
            children.push_back(joinPath(sweptFolder, name));
    return children;
}

std::set<std::string, std::less<>> DiskScanner::sweepExclusions(
    std::string_view sweptFolder) const {
    const auto root = standardForm(sweptFolder, host_);
    std::set<std::string, std::less<>> claimed;
    for (const auto& target : cleanupCatalogue(host_)) {
        if (target.isSweep()) continue;
        for (const auto& stored : target.paths) {
            const auto path = standardForm(stored, host_);
            if (isBelow(path, root))
                claimed.emplace(pathPieces(pathRelativeTo(path, root)).front());
        }
    }
    return claimed;
}

DiskScanner::CleanResult DiskScanner::clean(const CleanupItem& item) const {
    const auto before = heldBefore(item, host_.system);
    auto outcome = Removal::complete;
    for (const auto& path : item.resolvedPaths)
        if (attempt(path) == Removal::incomplete) outcome = Removal::incomplete;
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
