#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>

#include "deepscan/big_item_trash_guard.h"
#include "platform/files.h"
#include "platform/removal.h"
#include "platform/trash/exclusive_move.h"
#include "platform/trash/trash_name.h"
#include "support/refused_call.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell {
namespace {

using test::SampleMachine;
namespace fs = std::filesystem;

constexpr uid_t nobody = 65534;

TrashablePath approved(const SampleMachine& machine, std::string_view path) {
    BigItem item;
    item.id = machine.path(path);
    return BigItemTrashGuard(machine.host()).approve(item).value();
}

Trashing trashAt(const SampleMachine& machine, std::string_view path) {
    return moveToTrash(approved(machine, path), machine.host());
}

bool moves(const SampleMachine& machine, std::string_view path) {
    return trashAt(machine, path).moved.has_value();
}

/// Everything but the reason stays as it was: the item, and no new folder of any Trash.
void expectStays(const SampleMachine& machine, std::string_view path, std::string_view why) {
    const auto trashing = trashAt(machine, path);
    EXPECT_FALSE(trashing.moved);
    EXPECT_EQ(trashing.problem, why);
    EXPECT_TRUE(machine.has(path)) << path;
}

TEST(Trash, TakesAnItemAndKeepsWhereItCameFrom) {
    const SampleMachine machine;
    const std::string name = "a \xff\n.tar.gz";
    machine.text("~/Movies/" + name, "content");
    machine.text("~/Movies/folder/file", "x");
    machine.link("~/Movies/link", machine.path("~/Movies/folder"));
    EXPECT_TRUE(moves(machine, "~/Movies/" + name));
    EXPECT_TRUE(moves(machine, "~/Movies/link"));
    EXPECT_TRUE(moves(machine, "~/Movies/folder"));
    EXPECT_FALSE(moves(machine, "~/Movies/missing"));
    EXPECT_TRUE(fs::is_empty(machine.path("~/Movies")));
    EXPECT_EQ(machine.contentOf("~/.Trash/" + name), "content");
    EXPECT_TRUE(fs::is_symlink(machine.path("~/.Trash/link")));
    EXPECT_TRUE(machine.has("~/.Trash/folder/file"));
    EXPECT_EQ(fs::status(machine.path("~/.Trash")).permissions(), fs::perms::owner_all);
    for (const auto& moved : {name, std::string("folder")}) {
        const auto origin = extendedAttribute(machine.path("~/.Trash/" + moved), "tidewell.origin");
        if (origin) {
            EXPECT_EQ(*origin, machine.path("~/Movies/" + moved));
        }
    }
}

TEST(Trash, NeverOverwritesWhatItHolds) {
    const SampleMachine machine;
    const std::string longest = std::string(249, 'a') + "\xc3\xa4.mov";  // 255 bytes
    struct Row {
        std::string name, second, third;
    };
    for (const auto& [name, second, third] : {
             Row{"film.mov", "film 2.mov", "film 3.mov"},
             Row{"a.tar.gz", "a.tar 2.gz", "a.tar 3.gz"},
             Row{".hidden", ".hidden 2", ".hidden 3"},
             Row{"plain", "plain 2", "plain 3"},
             Row{longest, std::string(249, 'a') + " 2.mov", std::string(249, 'a') + " 3.mov"},
         }) {
        for (const auto* content : {"1", "2", "3"}) {
            machine.text("~/Movies/" + name, content);
            EXPECT_TRUE(moves(machine, "~/Movies/" + name));
        }
        EXPECT_EQ(machine.contentOf("~/.Trash/" + name), "1");
        EXPECT_EQ(machine.contentOf("~/.Trash/" + second), "2");
        EXPECT_EQ(machine.contentOf("~/.Trash/" + third), "3");
    }
}

TEST(Trash, ShortensNamesAtACharacterAndBytesThatAreNoneAnywhere) {
    using trash::trashName;
    EXPECT_EQ(trashName("\xf0\x9f\x8c\x8a\xf0\x9f\x8c\x8a", 2, 9), "\xf0\x9f\x8c\x8a 2");
    EXPECT_EQ(trashName(std::string(20, '\x80'), 2, 10), std::string(8, '\x80') + " 2");
    EXPECT_EQ(trashName("a." + std::string(20, 'x'), 12, 10), "a.xxxxx 12");
    EXPECT_EQ(trashName("abcdef.mov", 1, 10), "abcdef.mov");
}

TEST(Trash, RefusesOneThatIsALinkOrNotTheUsers) {
    const SampleMachine linked;
    linked.text("~/Movies/film", "x");
    linked.folder("~/Public");
    linked.link("~/.Trash", linked.path("~/Public"));
    expectStays(linked, "~/Movies/film", "The Trash is a link or no folder.");
    EXPECT_TRUE(fs::is_empty(linked.path("~/Public")));

    const SampleMachine foreign;
    foreign.text("~/Movies/film", "x");
    foreign.folder("~/.Trash");
    if (::chown(foreign.path("~/.Trash").c_str(), nobody, nobody) != 0)
        GTEST_SKIP() << "may not give a folder away";
    expectStays(foreign, "~/Movies/film", "The Trash belongs to somebody else.");
    foreign.remove("~/.Trash");
    ASSERT_EQ(::chown(foreign.home().c_str(), nobody, nobody), 0);
    expectStays(foreign, "~/Movies/film", "The home folder belongs to somebody else.");
    EXPECT_FALSE(foreign.has("~/.Trash"));
}

TEST(Trash, IsNotLedAwayByALinkInPlaceOfAParent) {
    const SampleMachine machine;
    machine.text("~/Movies/reel/film", "mine");
    machine.text("~/Documents/film", "other");
    const auto item = approved(machine, "~/Movies/reel/film");
    fs::rename(machine.path("~/Movies/reel"), machine.path("~/Movies/moved"));
    machine.link("~/Movies/reel", machine.path("~/Documents"));
    EXPECT_FALSE(moveToTrash(item, machine.host()).moved);
    EXPECT_TRUE(machine.has("~/Documents/film") && machine.has("~/Movies/moved/film"));
}

TEST(Trash, LeavesWhatWasMovedAwayWithItsFolderAtTheLastMoment) {
    const SampleMachine machine;
    machine.text("~/Movies/reel/film", "mine");
    machine.folder("~/.Trash");
    const auto folder = machine.path("~/Movies/reel");
    const trash::SeenPlace seen{.place = link_free::openPlaceOf(folder + "/film"),
                                .folderPath = folder};
    const auto to = link_free::openPlace(machine.path("~/.Trash"));
    fs::rename(folder, machine.path("~/Documents"));
    EXPECT_EQ(trash::moveWithoutOverwriting(seen, to.get(), "film", trash::Detour::byLink), ESTALE);
    EXPECT_TRUE(machine.has("~/Documents/film"));
}

TEST(Trash, FindsAWayWhereAFileSystemKnowsNoMoveWithoutOverwriting) {
    test::expectInSeparateProcess([] {
        const SampleMachine machine;
        machine.text("~/Movies/film", "mine");
        machine.text("~/Movies/reel/film", "x");
        machine.text("~/.Trash/film", "other");
        machine.text("~/.Trash/reel", "other");
        if (!test::refuseCall(SYS_renameat2, EINVAL)) GTEST_SKIP() << "may not filter calls";
        for (const std::string name : {"film", "reel"}) {
            const auto moved = trashAt(machine, "~/Movies/" + name).moved;
            ASSERT_TRUE(moved);
            EXPECT_EQ(moved->path, machine.path("~/.Trash/" + name + " 2"));
            EXPECT_EQ(machine.contentOf("~/.Trash/" + name), "other");
            machine.text("~/Movies/" + name, "new");
            EXPECT_EQ(putBack(*moved, machine.host()).problem, "Something stands there already.");
            EXPECT_EQ(machine.contentOf("~/Movies/" + name), "new");
            machine.remove("~/Movies/" + name);
            EXPECT_EQ(putBack(*moved, machine.host()).problem, "");
        }
        EXPECT_EQ(machine.contentOf("~/Movies/film"), "mine");
        EXPECT_TRUE(machine.has("~/Movies/reel/film"));
        EXPECT_FALSE(machine.has("~/.Trash/film 2") || machine.has("~/.Trash/reel 2"));
    });
}

/// What was made for an entry that does not come is not left standing.
TEST(Trash, SaysWhereAFileSystemKnowsNoWayAtAll) {
    test::expectInSeparateProcess([] {
        const SampleMachine machine;
        machine.text("~/Movies/film", "x");
        machine.text("~/Movies/reel/film", "x");
        if (!test::refuseCall(SYS_renameat2, EINVAL) || !test::refuseCall(SYS_renameat, EINVAL))
            GTEST_SKIP() << "may not filter calls";
        for (const auto* path : {"~/Movies/film", "~/Movies/reel"})
            expectStays(machine, path,
                        "The disk's file system cannot move it without overwriting.");
        EXPECT_FALSE(machine.has("~/.Trash"));
    });
}

/// A disk of its own below the home folder, in which a film lies.
struct OtherDisk {
    SampleMachine machine;
    std::string own = "~/Movies/disk/.Trashes/" + std::to_string(::geteuid());

    bool mount() const {
        machine.folder("~/Movies/disk");
        const auto disk = machine.path("~/Movies/disk");
        if (!test::enterOwnMountSpace() ||
            ::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=1m") != 0)
            return false;
        machine.text("~/Movies/disk/reel/film", "x");
        return true;
    }
};

TEST(Trash, OfAnotherVolumeIsAtItsTop) {
    test::expectInSeparateProcess([] {
        const OtherDisk disk;
        const auto& machine = disk.machine;
        if (!disk.mount()) GTEST_SKIP() << "may not mount";
        expectStays(machine, "~/Movies/disk", "Another disk begins there.");
        EXPECT_FALSE(machine.has("~/Movies/.Trashes"));
        const auto moved = trashAt(machine, "~/Movies/disk/reel/film").moved;
        ASSERT_TRUE(moved);
        EXPECT_EQ(moved->path, machine.path(disk.own + "/film"));
        EXPECT_TRUE(machine.has(disk.own + "/film"));
        EXPECT_FALSE(machine.has("~/.Trash"));
        machine.remove(disk.own);
        machine.link(disk.own, machine.path("~/Movies/disk/reel"));
        machine.text("~/Movies/disk/other", "x");
        expectStays(machine, "~/Movies/disk/other", "The Trash is a link or no folder.");
    });
}

TEST(Trash, OfAnotherVolumeIsUsedOnlyWhereNobodyElseCanReachIn) {
    test::expectInSeparateProcess([] {
        const OtherDisk disk;
        const auto& machine = disk.machine;
        if (!disk.mount()) GTEST_SKIP() << "may not mount";
        machine.folder("~/Movies/disk/.Trashes");
        const auto shared = machine.path("~/Movies/disk/.Trashes");
        ASSERT_EQ(::chmod(shared.c_str(), 0777), 0);
        expectStays(machine, "~/Movies/disk/reel/film",
                    "In the Trash of its disk everybody could touch what is yours.");
        ASSERT_EQ(::chmod(shared.c_str(), 01777), 0);
        if (::chown(shared.c_str(), nobody, nobody) != 0) return;
        expectStays(machine, "~/Movies/disk/reel/film",
                    "The Trash of its disk belongs to somebody else.");
        EXPECT_TRUE(fs::is_empty(shared));
    });
}

}  // namespace
}  // namespace tidewell
