#include "platform/mount_table.h"

#include <gtest/gtest.h>

#include "platform/linux/mount_lines.h"

namespace tidewell {
namespace {

using linux_system::mountsOfLines;
using Paths = std::vector<std::string>;

TEST(MountTable, FindsTheOtherPathsOfAPlace) {
    const MountTable table(mountsOfLines(
        "27 1 8:1 / / rw - ext4 /dev/a rw\n"
        "28 27 8:2 / /home rw shared:1 master:2 - ext4 /dev/b rw\n"
        "29 28 8:2 /ada/Documents/my\\040thesis /home/ada/.gradle rw - ext4 /dev/b rw\n"
        "30 28 8:2 /ada /srv/ada rw - ext4 /dev/b rw\n"
        "31 28 0:9 / /home/ada/covered rw - tmpfs none rw\n"
        "32 31 8:1 /top /home/ada/covered rw - ext4 /dev/a rw\n"
        "33 27 0:35 /@home /mnt/sub rw - btrfs /dev/c rw\n"
        "34 27 0:35 / /mnt/all rw - btrfs /dev/c rw\n"
        "damaged\n35 28 8:2\n36 28 8:2 relative places rw\n37 99 8:2 \\9 /x\\"));
    EXPECT_TRUE(table.isKnown());
    EXPECT_EQ(table.mounts()[4].kind, "tmpfs");
    struct Row {
        const char* path;
        Paths others;
    };
    for (const auto& [path, others] : {
             Row{"/home/ada/.gradle/x",
                 {"/home/ada/Documents/my thesis/x", "/srv/ada/Documents/my thesis/x"}},
             Row{"/home/ada/Documents/my thesis",
                 {"/home/ada/.gradle", "/srv/ada/Documents/my thesis"}},
             Row{"/home/ada/Documents/my thesis 2", {"/srv/ada/Documents/my thesis 2"}},
             Row{"/home/bob", {}},
             Row{"/home/ada/covered/x", {"/top/x"}},
             Row{"/top", {"/home/ada/covered"}},
             Row{"/mnt/sub/x", {"/mnt/all/@home/x"}},
             Row{"/mnt/all/@home/x", {"/mnt/sub/x"}},
             Row{"/mnt/all/@other", {}},
         })
        EXPECT_EQ(table.otherPaths(path), others) << path;
    EXPECT_EQ(table.placesBelow("/home/ada"),
              (Paths{"/home/ada/.gradle", "/home/ada/covered", "/home/ada/covered"}));
}

TEST(MountTable, IsNotKnownWhereTheRootIsNotInIt) {
    for (const auto* lines : {"", "\n\n", "30 28 8:2 /ada /srv rw - ext4 /dev/b rw\n"}) {
        const MountTable table(mountsOfLines(lines));
        EXPECT_FALSE(table.isKnown()) << lines;
        EXPECT_TRUE(table.otherPaths("/srv/x").empty()) << lines;
    }
    // Each the other's parent.
    const MountTable loop(mountsOfLines("1 2 8:1 / / rw\n2 1 8:1 / / rw\n"));
    EXPECT_EQ(loop.otherPaths("/x"), Paths());
    EXPECT_TRUE(MountTable::read().isKnown());
}

}  // namespace
}  // namespace tidewell
