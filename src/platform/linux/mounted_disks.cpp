#include <algorithm>
#include <array>
#include <string_view>

#include "platform/mount_table.h"
#include "platform/path_text.h"
#include "platform/trash/volumes.h"

namespace tidewell::trash {

namespace {

constexpr std::array<std::string_view, 17> diskKinds = {
    "bcachefs", "btrfs", "exfat", "ext2",     "ext3",  "ext4", "f2fs", "fuseblk", "hfsplus",
    "jfs",      "msdos", "ntfs3", "reiserfs", "tmpfs", "vfat", "xfs",  "zfs",
};

}  // namespace

std::vector<std::string> mountedDisks(const std::string& root) {
    std::vector<std::string> places;
    const auto table = MountTable::read();
    for (const auto& mount : table.mounts()) {
        const bool isDisk = std::ranges::find(diskKinds, mount.kind) != diskKinds.end();
        if (isDisk && isAtOrBelow(mount.place, root)) places.push_back(mount.place);
    }
    std::ranges::sort(places);
    const auto twice = std::ranges::unique(places);
    places.erase(twice.begin(), twice.end());
    return places;
}

}  // namespace tidewell::trash
