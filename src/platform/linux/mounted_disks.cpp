#include <mntent.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <string_view>

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
    const std::unique_ptr<FILE, int (*)(FILE*)> table(::setmntent("/proc/self/mounts", "r"),
                                                      ::endmntent);
    std::vector<std::string> places;
    if (!table) return places;
    mntent entry;
    char buffer[16 * 1024];
    while (::getmntent_r(table.get(), &entry, buffer, sizeof buffer)) {
        const bool isDisk =
            std::ranges::find(diskKinds, std::string_view(entry.mnt_type)) != diskKinds.end();
        if (isDisk && isAtOrBelow(entry.mnt_dir, root)) places.emplace_back(entry.mnt_dir);
    }
    std::ranges::sort(places);
    const auto twice = std::ranges::unique(places);
    places.erase(twice.begin(), twice.end());
    return places;
}

}  // namespace tidewell::trash
