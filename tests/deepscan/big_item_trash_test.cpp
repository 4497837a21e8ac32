#include <gtest/gtest.h>

#include "deepscan/big_item_scanner.h"
#include "deepscan/big_item_support.h"
#include "support/sample_machine.h"

namespace tidewell::test {
namespace {

using Kind = BigItem::Kind;

struct BigItemTrash : testing::Test {
    BigItemScanner::TrashOutcome trash(std::string_view path, Kind kind = Kind::personal) const {
        return BigItemScanner(machine.host()).trash(bigItem(machine.path(path), kind, 5000));
    }
    void expectRefused(std::string_view path, Kind kind = Kind::personal) const {
        const auto outcome = trash(path, kind);
        EXPECT_FALSE(outcome.success) << path;
        EXPECT_EQ(outcome.freedBytes, 0) << path;
    }

    SampleMachine machine;
};

TEST(BigItemTrashGuard, TakesOnlyWhatLiesTwoLevelsBelowHome) {
    for (const auto path : {"/h/Documents/x", "/h/Documents/../Music/x", "/h//Documents//x/"})
        EXPECT_TRUE(isDeepInHome(path, "/h")) << path;
    for (const auto path :
         {"/h", "/h/Documents/", "/h//Documents", "/h/./Documents", "/h/Documents/x/..",
          "/home/Documents/x", "/h/../other/x/y", "/", "", "Documents/x"})
        EXPECT_FALSE(isDeepInHome(path, "/h")) << path;
}

TEST_F(BigItemTrash, MovesAnItemWithAllInItAndKeepsWhatIsInTheTrash) {
    machine.text("~/.Trash/X.data", "older");
    machine.text("~/Library/Caches/X.data/deep/file", "newer");

    const auto outcome = trash("~/Library/Caches/X.data", Kind::cache);

    EXPECT_TRUE(outcome.success);
    EXPECT_EQ(outcome.freedBytes, 5000);
    EXPECT_EQ(outcome.name, "X.data");
    EXPECT_FALSE(machine.has("~/Library/Caches/X.data"));
    EXPECT_EQ(machine.contentOf("~/.Trash/X.data"), "older");
    EXPECT_EQ(machine.contentOf("~/.Trash/X 2.data/deep/file"), "newer");
    expectRefused("~/Library/Caches/X.data");  // it is gone
}

TEST_F(BigItemTrash, RefusesVirtualDisksAndWhatIsNotTwoLevelsBelowHome) {
    machine.text("~/Documents/x", "kept");
    machine.text("/Users/Shared/folder/x", "kept");
    machine.link("/Users/Shared/in", machine.path("~/Documents"));
    expectRefused("~/Documents/x", Kind::container);
    for (const auto path : {"~", "~/Documents", "~/Documents/x/..", "/Users/Shared/folder/x",
                            "~/../Shared/folder/x", "/Users/Shared/in/x"})
        expectRefused(path);
    EXPECT_TRUE(machine.has("~/Documents/x"));
    EXPECT_TRUE(machine.has("/Users/Shared/folder/x"));
    EXPECT_FALSE(machine.has("~/.Trash"));
}

TEST_F(BigItemTrash, LetsNoLinkCarryItPastTheGuard) {
    machine.text("/Users/Shared/folder/x", "kept");
    machine.link("~/Downloads", machine.path("/Users/Shared"));
    expectRefused("~/Downloads/folder");
    machine.link("~/Movies/deep", machine.path("/Users/Shared"));
    expectRefused("~/Movies/deep/folder/x");
    machine.text("~/Documents/thesis", "kept");
    machine.link("~/Music/up", machine.home());
    expectRefused("~/Music/up/Documents");
    EXPECT_TRUE(machine.has("/Users/Shared/folder/x"));
    EXPECT_TRUE(machine.has("~/Documents/thesis"));

    EXPECT_TRUE(trash("~/Movies/deep").success) << "a link may go, but alone";
    EXPECT_FALSE(machine.has("~/Movies/deep"));
    EXPECT_TRUE(machine.has("/Users/Shared/folder/x"));
}

TEST_F(BigItemTrash, KeepsWhatAPersonalFolderOrAKeyLeadsTo) {
    machine.file("~/Sync/mine/Documents/thesis", 90 * megabyte);
    machine.folder("~/Sync/mine/Documents/node_modules");
    machine.text("~/Sync/keys/id", "x");
    machine.link("~/Documents", "Sync/mine/Documents");
    machine.link("~/.ssh", "Sync/keys");
    machine.link("~/Work", "Sync/mine");
    const KeptPlaces kept(machine.host());
    const auto kindOf = [&](const char* path) {
        return classifyPlace(machine.path(path), machine.host(), kept);
    };
    for (const auto* path : {"~/Sync/mine", "~/Sync/mine/Documents", "~/Work/Documents/thesis",
                             "~/Sync/mine/Documents/thesis"})
        EXPECT_EQ(kindOf(path), Kind::personal) << path;
    EXPECT_EQ(kindOf("~/Sync/mine/Documents/node_modules"), Kind::rebuildable);
    EXPECT_EQ(kindOf("~/Sync/other"), Kind::other);
    const auto found = BigItemScanner(machine.host()).scan();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found.front().kind, Kind::personal);

    for (const auto* path : {"~/Sync/mine", "~/Sync/mine/Documents", "~/Work/Documents",
                             "~/Sync/keys", "~/Sync/keys/id"})
        expectRefused(path);
    EXPECT_TRUE(trash("~/Work/Documents/thesis").success) << "one thing in it may go, if asked";
}

/// What the deep scan of a Linux machine lists may go, up to the home folder's own entries; what
/// holds the folders that it lists from, or a machine's disks, may not.
TEST(BigItemTrashGuard, TakesALinuxHomesEntriesButNoRootAndNoDisks) {
    const SampleMachine machine(System::linux);
    for (const auto* place : {"~/.old", "~/.cache/x", "~/.config/app", "~/.var/app/org.example.App",
                              "~/Code/app", "~/.local/share/containers/cache"})
        machine.file(std::string(place) + "/a");
    machine.file("~/backup.img");
    machine.file("~/.local/share/containers/storage/overlay/a");
    machine.file("~/.ssh/id");
    machine.file("~/Videos/film");
    machine.file("~/.local/share/Trash/files/old");
    const auto mayGo = [&machine](const char* place) {
        const auto item = bigItem(machine.path(place), Kind::other, 5000);
        return BigItemTrashGuard(machine.host()).approve(item).has_value();
    };
    for (const auto* place :
         {"~/.old", "~/backup.img", "~/.cache/x", "~/.config/app", "~/.var/app/org.example.App",
          "~/Code/app", "~/.local/share/containers/cache", "~/Videos/film"})
        EXPECT_TRUE(mayGo(place)) << place;
    for (const auto* place :
         {"~", "~/.cache", "~/.config", "~/.local", "~/.local/share", "~/.var", "~/.var/app",
          "~/Code", "~/Videos", "~/.ssh", "~/.ssh/id", "~/.local/share/containers",
          "~/.local/share/containers/storage", "~/.local/share/containers/storage/overlay",
          "~/.local/share/Trash", "~/.local/share/Trash/files/old"})
        EXPECT_FALSE(mayGo(place)) << place;
}

}  // namespace
}  // namespace tidewell::test
