#include "platform/mount_table.h"

#include <sys/mount.h>
#include <sys/param.h>
#include <sys/stat.h>

#include <algorithm>

#include "platform/macos/mounted_systems.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

/// The mount that holds the folder on which another was put: the innermost at or above it.
std::string parentOf(const MountTable::Mount& mount, const std::vector<MountTable::Mount>& all) {
    const MountTable::Mount* parent = nullptr;
    for (const auto& other : all)
        if (isBelow(mount.place, other.place) &&
            (!parent || other.place.size() > parent->place.size()))
            parent = &other;
    return parent ? parent->id : std::string();
}

}  // namespace

/// Each mount shows the whole of its disk, or of a snapshot of it, which has a name of its own.
MountTable MountTable::read() {
    std::vector<Mount> mounts;
    for (const auto& system : macos_system::mountedSystems())
        mounts.push_back({.id = macos_system::numberOf(system),
                          .parent = {},
                          .disk = system.f_mntfromname,
                          .part = "/",
                          .place = system.f_mntonname,
                          .kind = system.f_fstypename});
    for (auto& mount : mounts) mount.parent = parentOf(mount, mounts);
    return MountTable(std::move(mounts));
}

std::optional<std::uint64_t> mountNumber(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) return std::nullopt;
    return static_cast<std::uint32_t>(status.st_dev);
}

}  // namespace tidewell
