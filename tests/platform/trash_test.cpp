#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "deepscan/big_item_trash_guard.h"
#include "platform/files.h"
#include "platform/removal.h"
#include "support/sample_machine.h"

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
    return moveToTrash(approved(machine, path), machine.home());
}

TEST(Trash, TakesAnItemAndKeepsWhereItCameFrom) {
    const SampleMachine machine;
    const std::string name = "a \xff\n.tar.gz";
    machine.text("~/Movies/" + name, "content");
    machine.text("~/Movies/folder/file", "x");
    machine.link("~/Movies/link", machine.path("~/Movies/folder"));
    EXPECT_EQ(trashAt(machine, "~/Movies/" + name), Trashing::moved);
    EXPECT_EQ(trashAt(machine, "~/Movies/link"), Trashing::moved);
    EXPECT_EQ(trashAt(machine, "~/Movies/folder"), Trashing::moved);
    EXPECT_EQ(trashAt(machine, "~/Movies/missing"), Trashing::failed);
    EXPECT_TRUE(fs::is_empty(machine.path("~/Movies")));
    EXPECT_EQ(machine.contentOf("~/.Trash/" + name), "content");
    EXPECT_TRUE(fs::is_symlink(machine.path("~/.Trash/link")));
    EXPECT_TRUE(machine.has("~/.Trash/folder/file"));
    EXPECT_EQ(fs::status(machine.path("~/.Trash")).permissions(), fs::perms::owner_all);
    for (const auto& moved : {name, std::string("folder")}) {
        const auto origin =
            extendedAttribute(machine.path("~/.Trash/" + moved), "user.tidewell.origin");
        if (origin) {
            EXPECT_EQ(*origin, machine.path("~/Movies/" + moved));
        }
    }
}

TEST(Trash, NeverOverwritesWhatItHolds) {
    const SampleMachine machine;
    struct Row {
        std::string name, second, third;
    };
    for (const auto& [name, second, third] : {
             Row{"film.mov", "film 2.mov", "film 3.mov"},
             Row{"a.tar.gz", "a.tar 2.gz", "a.tar 3.gz"},
             Row{".hidden", ".hidden 2", ".hidden 3"},
             Row{"plain", "plain 2", "plain 3"},
         }) {
        for (const auto* content : {"1", "2", "3"}) {
            machine.text("~/Movies/" + name, content);
            EXPECT_EQ(trashAt(machine, "~/Movies/" + name), Trashing::moved);
        }
        EXPECT_EQ(machine.contentOf("~/.Trash/" + name), "1");
        EXPECT_EQ(machine.contentOf("~/.Trash/" + second), "2");
        EXPECT_EQ(machine.contentOf("~/.Trash/" + third), "3");
    }
}

TEST(Trash, RefusesOneThatIsALinkOrNotTheUsers) {
    const SampleMachine linked;
    linked.text("~/Movies/film", "x");
    linked.folder("~/Public");
    linked.link("~/.Trash", linked.path("~/Public"));
    EXPECT_EQ(trashAt(linked, "~/Movies/film"), Trashing::failed);
    EXPECT_TRUE(linked.has("~/Movies/film") && fs::is_empty(linked.path("~/Public")));

    const SampleMachine foreign;
    foreign.text("~/Movies/film", "x");
    foreign.folder("~/.Trash");
    if (::chown(foreign.path("~/.Trash").c_str(), nobody, nobody) != 0)
        GTEST_SKIP() << "may not give a folder away";
    EXPECT_EQ(trashAt(foreign, "~/Movies/film"), Trashing::failed);
    EXPECT_TRUE(foreign.has("~/Movies/film"));
}

TEST(Trash, IsNotLedAwayByALinkInPlaceOfAParent) {
    const SampleMachine machine;
    machine.text("~/Movies/reel/film", "mine");
    machine.text("~/Documents/film", "other");
    const auto item = approved(machine, "~/Movies/reel/film");
    fs::rename(machine.path("~/Movies/reel"), machine.path("~/Movies/moved"));
    machine.link("~/Movies/reel", machine.path("~/Documents"));
    EXPECT_EQ(moveToTrash(item, machine.home()), Trashing::failed);
    EXPECT_TRUE(machine.has("~/Documents/film") && machine.has("~/Movies/moved/film"));
}

/// The exit code: 0 if all held, 2 if this process may not mount.
int trashOnAnotherVolume() {
    const SampleMachine machine;
    machine.folder("~/Movies/disk");
    machine.folder("~/Public");
    const auto disk = machine.path("~/Movies/disk");
    if (::unshare(CLONE_NEWNS) != 0 ||
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=1m") != 0)
        return 2;
    const auto own = "~/Movies/disk/.Trashes/" + std::to_string(::geteuid());
    machine.text("~/Movies/disk/reel/film", "x");
    bool isWell = trashAt(machine, "~/Movies/disk/reel/film") == Trashing::moved &&
                  machine.has(own + "/film") && fs::is_empty(machine.path("~/.Trash"));
    fs::rename(machine.path(own), machine.path(own) + ".old");
    machine.link(own, machine.path("~/Movies/disk/reel"));
    machine.text("~/Movies/disk/other", "x");
    isWell = isWell && trashAt(machine, "~/Movies/disk/other") == Trashing::failed &&
             machine.has("~/Movies/disk/other") &&
             trashAt(machine, "~/Movies/disk") == Trashing::failed;
    ::umount2(disk.c_str(), MNT_DETACH);
    return isWell ? 0 : 1;
}

TEST(Trash, OfAnotherVolumeIsAtItsTop) {
    const auto child = ::fork();
    if (child == 0) ::_exit(trashOnAnotherVolume());
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 2) GTEST_SKIP() << "may not mount";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

}  // namespace
}  // namespace tidewell
