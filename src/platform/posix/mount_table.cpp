#include "platform/mount_table.h"

#include <algorithm>
#include <utility>

#include "platform/path_text.h"

namespace tidewell {

namespace {

/// `path`, which lies at or below `from`, seen from `to`.
std::string moved(std::string_view path, std::string_view from, std::string_view to) {
    const auto rest = path == from ? std::string_view() : pathRelativeTo(path, from);
    return rest.empty() ? std::string(to) : joinPath(to, rest);
}

}  // namespace

MountTable::MountTable(std::vector<Mount> mounts) : mounts_(std::move(mounts)) {}

const MountTable::Mount* MountTable::root() const {
    const auto found = std::ranges::find(mounts_, "/", &Mount::place);
    return found == mounts_.end() ? nullptr : &*found;
}

/// Goes down from mount to mount as the system does when it looks a path up, so that one which
/// another covers is not taken.
const MountTable::Mount* MountTable::holding(std::string_view path) const {
    const auto* found = root();
    for (std::size_t steps = 0; found && steps < mounts_.size(); ++steps) {
        const Mount* next = nullptr;
        for (const auto& mount : mounts_) {
            if (&mount == found || mount.parent != found->id || !isAtOrBelow(path, mount.place))
                continue;
            if (!next || mount.place.size() < next->place.size()) next = &mount;
        }
        if (!next) return found;
        found = next;
    }
    return found;
}

std::vector<std::string> MountTable::otherPaths(std::string_view path) const {
    const auto* mount = holding(path);
    if (!mount) return {};
    const auto onDisk = moved(path, mount->place, mount->part);
    std::vector<std::string> paths;
    for (const auto& other : mounts_) {
        if (&other == mount || other.disk != mount->disk || !isAtOrBelow(onDisk, other.part))
            continue;
        auto otherPath = moved(onDisk, other.part, other.place);
        if (otherPath != path) paths.push_back(std::move(otherPath));
    }
    return paths;
}

std::vector<std::string> MountTable::placesBelow(std::string_view folder) const {
    std::vector<std::string> places;
    for (const auto& mount : mounts_)
        if (isBelow(mount.place, folder)) places.push_back(mount.place);
    return places;
}

}  // namespace tidewell
