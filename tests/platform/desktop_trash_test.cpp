#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <iterator>

#include "cleanup/disk_scanner.h"
#include "deepscan/big_item_trash_guard.h"
#include "platform/path_text.h"
#include "platform/removal.h"
#include "platform/trash/trash_info.h"
#include "support/child_process.h"
#include "support/local_time_zone.h"
#include "support/program_run.h"
#include "support/refused_call.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell {
namespace {

using test::SampleMachine;
namespace fs = std::filesystem;

constexpr uid_t nobody = 65534;

/// A machine on which a desktop's Trash is used.
struct Desktop {
    SampleMachine machine;
    Host host = withDesktop(machine.host());

    static Host withDesktop(Host host) {
        host.system = System::linux;
        host.baseFolders.data = host.home + "/.local/share";
        return host;
    }

    std::string path(std::string_view place) const { return machine.path(place); }
    bool has(const std::string& place) const { return machine.has(place); }

    Trashing trash(std::string_view place) const {
        BigItem item;
        item.id = machine.path(place);
        return moveToTrash(BigItemTrashGuard(host).approve(item).value(), host);
    }
    /// A file with that content, moved.
    TrashedItem trashNew(std::string_view place, std::string_view content = "x") const {
        machine.text(place, content);
        const auto trashing = trash(place);
        EXPECT_TRUE(trashing.moved) << place << ": " << trashing.problem;
        return trashing.moved.value_or(TrashedItem());
    }
    void expectStays(std::string_view place, std::string_view why) const {
        const auto trashing = trash(place);
        EXPECT_FALSE(trashing.moved);
        EXPECT_EQ(trashing.problem, why);
        EXPECT_TRUE(machine.has(place)) << place;
    }
    void expectStaysInTrash(const TrashedItem& item, std::string_view why) const {
        const auto back = putBack(item, host);
        EXPECT_FALSE(back.place);
        EXPECT_EQ(back.problem, why);
        EXPECT_TRUE(fs::exists(fs::symlink_status(item.path))) << item.path;
    }
    std::vector<std::string> namesInTrash() const {
        std::vector<std::string> names;
        for (const auto& item : trashedItems(host)) names.push_back(item.name);
        return names;
    }
    /// What another program has written about an entry that it moved.
    TrashedItem foreignItem(const std::string& name, const std::string& info) const {
        machine.text(files + name, "x");
        machine.text(infos + name + ".trashinfo", info);
        for (const auto& item : trashedItems(host))
            if (item.name == name) return item;
        ADD_FAILURE() << name << " is not listed";
        return {};
    }

    const std::string files = "~/.local/share/Trash/files/";
    const std::string infos = "~/.local/share/Trash/info/";
};

std::string infoOf(const std::string& path) {
    return "[Trash Info]\nPath=" + path + "\nDeletionDate=2026-11-03T10:00:00\n";
}

TEST(DesktopTrash, KeepsBesideEachEntryWhereItCameFromAndWhen) {
    const test::LocalTimeZone zone("Asia/Tokyo");
    const Desktop desktop;
    const std::string name = "50% \xc3\xa4\xff\n[a]";
    const auto moved = desktop.trashNew("~/Movies/" + name, "content");
    EXPECT_EQ(desktop.machine.contentOf(desktop.files + name), "content");
    const auto text = desktop.machine.contentOf(desktop.infos + name + ".trashinfo");
    EXPECT_EQ(text.substr(0, text.find("DeletionDate=")),
              "[Trash Info]\nPath=" + desktop.path("~/Movies") + "/50%25%20%C3%A4%FF%0A%5Ba%5D\n");
    for (const auto* folder : {"", "/files", "/info"})
        EXPECT_EQ(fs::status(desktop.path("~/.local/share/Trash") + folder).permissions(),
                  fs::perms::owner_all);
    const auto listed = trashedItems(desktop.host);
    ASSERT_EQ(listed.size(), 1U);
    EXPECT_EQ(listed.front(), moved);
    EXPECT_EQ(moved.origin, desktop.path("~/Movies/" + name));
    ASSERT_TRUE(moved.deletedAt);
    EXPECT_LT(std::chrono::abs(std::chrono::system_clock::now() - *moved.deletedAt),
              std::chrono::minutes(1));
    EXPECT_EQ(putBack(moved, desktop.host).place, desktop.path("~/Movies/" + name));
    EXPECT_EQ(desktop.machine.contentOf("~/Movies/" + name), "content");
    EXPECT_TRUE(fs::is_empty(desktop.path(desktop.infos)));
}

TEST(DesktopTrash, TakesNoNameThatEitherFolderHas) {
    const Desktop desktop;
    desktop.trashNew("~/Movies/film.mov");
    desktop.machine.text(desktop.files + "film 2.mov", "without a text about it");
    desktop.machine.text(desktop.infos + "film 3.mov.trashinfo", "without an entry");
    EXPECT_EQ(desktop.trashNew("~/Movies/film.mov").name, "film 4.mov");
    EXPECT_EQ(desktop.machine.contentOf(desktop.files + "film 2.mov"), "without a text about it");
    EXPECT_FALSE(desktop.has(desktop.infos + "film 2.mov.trashinfo"));
    const std::string longest = std::string(249, 'a') + "\xc3\xa4.mov";
    EXPECT_EQ(desktop.trashNew("~/Movies/" + longest).name, std::string(241, 'a') + ".mov");
    EXPECT_EQ(desktop.trashNew("~/Movies/" + longest).name, std::string(239, 'a') + " 2.mov");
}

TEST(DesktopTrash, RefusesOneThatIsALinkOrSomebodyElses) {
    for (const std::string part : {"", "/files", "/info"}) {
        const Desktop desktop;
        const auto place = "~/.local/share/Trash" + part;
        desktop.machine.text("~/Movies/film", "x");
        desktop.machine.folder("~/Public");
        desktop.machine.link(place, desktop.path("~/Public"));
        desktop.expectStays("~/Movies/film", "The Trash is a link or no folder.");
        EXPECT_TRUE(fs::is_empty(desktop.path("~/Public")));
        desktop.machine.remove(place);
        desktop.machine.folder(place);
        if (::chown(desktop.path(place).c_str(), nobody, nobody) != 0) continue;
        desktop.expectStays("~/Movies/film", "The Trash belongs to somebody else.");
    }
}

TEST(DesktopTrash, FollowsADataFolderThatIsALinkOnceToWhatIsTheUsers) {
    const Desktop desktop;
    const std::string data = "~/.local/share";
    desktop.machine.text("~/Movies/film", "x");
    desktop.machine.folder("~/dotfiles/share");
    desktop.machine.folder("/srv/elsewhere");
    desktop.machine.link("~/dotfiles/link", "share");
    desktop.machine.folder("~/.local");
    const auto refused = "The folder of the Trash is a link that leads to nothing of yours.";
    for (const auto& target :
         {std::string("../dotfiles/link"), std::string("../missing"), std::string("/srv"),
          std::string("/srv/elsewhere"), desktop.machine.home()}) {
        desktop.machine.link(data, target);
        if (target == "/srv/elsewhere" || target == "/srv")
            (void)!::chown(desktop.path(target).c_str(), nobody, nobody);
        desktop.expectStays("~/Movies/film", refused);
        desktop.machine.remove(data);
    }
    desktop.machine.link(data, "../dotfiles/share");
    EXPECT_EQ(desktop.trash("~/Movies/film").problem, "");
    EXPECT_TRUE(desktop.has("~/dotfiles/share/Trash/files/film"));
    EXPECT_EQ(desktop.namesInTrash(), std::vector<std::string>{"film"});
}

TEST(DesktopTrash, LeavesNothingBehindOfAMoveThatFailed) {
    struct Row {
        unsigned call;
        unsigned error;
        std::string_view why;
    };
    for (const auto& row : {Row{SYS_fsync, ENOSPC, "The disk is full."},
                            Row{SYS_renameat2, EACCES, "You lack the rights for it."}})
        test::expectInSeparateProcess([&row] {
            const Desktop desktop;
            desktop.machine.text("~/Movies/film", "x");
            desktop.machine.folder(desktop.infos);
            desktop.machine.folder(desktop.files);
            if (!test::refuseCall(row.call, row.error)) GTEST_SKIP() << "may not filter calls";
            desktop.expectStays("~/Movies/film", row.why);
            EXPECT_TRUE(fs::is_empty(desktop.path(desktop.infos)));
        });
}

TEST(DesktopTrash, LosesNothingToTwoProgramsThatTrashTheSameNamesAtOnce) {
    const Desktop desktop;
    constexpr int count = 60;
    const std::vector<std::string> places = {"~/Movies/", "~/Music/"};
    for (const auto& place : places)
        for (int number = 0; number < count; ++number)
            desktop.machine.text(place + std::to_string(number) + "/film.mov", place);
    const auto trashAll = [&](const std::string& place) {
        bool areMoved = true;
        for (int number = 0; number < count; ++number)
            areMoved &=
                desktop.trash(place + std::to_string(number) + "/film.mov").moved.has_value();
        return areMoved;
    };
    test::ChildProcess other([&] { return trashAll(places[0]); });
    EXPECT_TRUE(trashAll(places[1]));
    EXPECT_TRUE(other.succeeded());
    const auto items = trashedItems(desktop.host);
    EXPECT_EQ(items.size(), 2U * count);
    for (const auto& item : items) {
        EXPECT_TRUE(putBack(item, desktop.host).place) << item.name;
        const auto content = desktop.machine.contentOf(
            "~/" + std::string(desktop.host.relativeToHome(item.origin.value_or(""))));
        EXPECT_TRUE(item.origin && item.origin->starts_with(desktop.path(content))) << item.name;
    }
}

TEST(DesktopTrash, KeepsTheSizesThatFileManagersRememberUpToDate) {
    const Desktop desktop;
    const std::string sizes = "~/.local/share/Trash/directorysizes";
    desktop.machine.file("~/Movies/reel a/one", 8192);
    EXPECT_TRUE(desktop.trash("~/Movies/reel a").moved);
    EXPECT_FALSE(desktop.has(sizes));  // none is made
    desktop.machine.text(sizes, "1 2 gone\nnonsense\n4096 3 ../files\n");
    desktop.machine.file("~/Movies/reel a/one", 8192);
    fs::create_hard_link(desktop.path("~/Movies/reel a/one"), desktop.path("~/Movies/reel a/two"));
    const auto item = desktop.trash("~/Movies/reel a").moved.value();
    const auto du = test::runProgram("/usr/bin/du", {"-s", "-B1", item.path}).output;
    struct stat status;
    ASSERT_EQ(::stat(desktop.path(desktop.infos + "reel a 2.trashinfo").c_str(), &status), 0);
    EXPECT_EQ(
        desktop.machine.contentOf(sizes),
        du.substr(0, du.find('\t')) + " " + std::to_string(status.st_mtime) + " reel%20a%202\n");
    EXPECT_TRUE(putBack(item, desktop.host).place);
    EXPECT_EQ(desktop.machine.contentOf(sizes), "");
    desktop.machine.remove(sizes);
    desktop.machine.text("~/Movies/mine", "1 2 gone\n");
    desktop.machine.link(sizes, desktop.path("~/Movies/mine"));
    EXPECT_TRUE(desktop.trash("~/Movies/reel a").moved);
    EXPECT_EQ(desktop.machine.contentOf("~/Movies/mine"), "1 2 gone\n");
}

TEST(DesktopTrash, GathersWhatEarlierStartsMovedElsewhereWithTheFirstRemoval) {
    const Desktop desktop;
    desktop.machine.text("~/Movies/old/film", "old");
    BigItem item;
    item.id = desktop.path("~/Movies/old");
    const auto older =
        moveToTrash(BigItemTrashGuard(desktop.host).approve(item).value(), desktop.machine.host());
    ASSERT_TRUE(older.moved);
    desktop.machine.text("~/.Trash/notes", "of another program");
    const auto listed = trashedItems(desktop.host);
    if (listed.empty()) GTEST_SKIP() << "the file system keeps no attributes";
    ASSERT_EQ(listed.size(), 1U);
    EXPECT_EQ(listed.front().origin, desktop.path("~/Movies/old"));
    EXPECT_TRUE(desktop.has("~/.Trash/old/film"));  // looking moved nothing
    desktop.trashNew("~/Movies/new");
    EXPECT_EQ(desktop.namesInTrash(), (std::vector<std::string>{"new", "old"}));
    EXPECT_EQ(desktop.machine.contentOf("~/.Trash/notes"), "of another program");
    EXPECT_EQ(putBack(trashedItems(desktop.host).back(), desktop.host).place,
              desktop.path("~/Movies/old"));
    EXPECT_EQ(desktop.machine.contentOf("~/Movies/old/film"), "old");
}

TEST(PutBack, MakesParentsAndNeverOverwritesOrFollowsALink) {
    const Desktop desktop;
    const auto item = desktop.trashNew("~/Movies/a/b/film", "mine");
    fs::remove_all(desktop.path("~/Movies/a"));
    desktop.machine.folder("~/Documents/b");
    desktop.machine.link("~/Movies/a", desktop.path("~/Documents"));
    desktop.expectStaysInTrash(item, "A link or a file stands on the way to it.");
    EXPECT_TRUE(fs::is_empty(desktop.path("~/Documents/b")));
    desktop.machine.remove("~/Movies/a");
    desktop.machine.link("~/Movies/a/b/film", "leads/nowhere");
    desktop.expectStaysInTrash(item, "Something stands there already.");
    EXPECT_TRUE(fs::is_symlink(desktop.path("~/Movies/a/b/film")));
    fs::remove_all(desktop.path("~/Movies/a"));
    EXPECT_EQ(putBack(item, desktop.host).place, desktop.path("~/Movies/a/b/film"));
    EXPECT_EQ(desktop.machine.contentOf("~/Movies/a/b/film"), "mine");
    EXPECT_EQ(putBack(item, desktop.host).problem, "It is not in the Trash any more.");
}

TEST(PutBack, RefusesWhatTheTrashSaysWrongly) {
    const Desktop desktop;
    desktop.trashNew("~/Movies/film");
    const auto unknown = "The Trash does not say where it came from.";
    const auto wrong = "The Trash names no place that it can have come from.";
    const auto home = desktop.machine.home();
    struct Row {
        std::string info;
        std::string_view why;
    };
    int number = 0;
    for (const auto& row : {
             Row{"", unknown},
             Row{"[Other]\nPath=/a\n", unknown},
             Row{"[Trash Info]\nPath=\n", unknown},
             Row{"[Trash Info]\n[Other]\nPath=/a\n", unknown},
             Row{infoOf(home + "/Movies/../.bashrc"), unknown},
             Row{infoOf(home + "/Movies/%2e%2e/x"), unknown},
             Row{infoOf(home + "/Movies/x%00"), unknown},
             Row{infoOf(home + "/Movies/x%4"), unknown},
             Row{infoOf(home + "/x") + std::string(100'000, '\n'), unknown},
             Row{std::string("[Trash Info]\0\n", 14) + "Path=" + home + "/x\n", unknown},
             Row{infoOf(home + "/.local/share/Trash/info/x"), wrong},
         })
        desktop.expectStaysInTrash(desktop.foreignItem(std::to_string(number++), row.info),
                                   row.why);
    const auto good = desktop.foreignItem("good", infoOf(home + "/Movies/good"));
    const auto text = desktop.path(desktop.infos + "good.trashinfo");
    fs::rename(text, text + ".there");
    for (const auto make :
         {+[](const char* place) { return ::symlink("good.trashinfo.there", place); },
          +[](const char* place) { return ::mkfifo(place, 0600); },
          +[](const char* place) { return ::mkdir(place, 0700); }}) {
        ASSERT_EQ(make(text.c_str()), 0);
        desktop.expectStaysInTrash(trashedItems(desktop.host).back(), unknown);
        fs::remove(text);
    }
    EXPECT_TRUE(putBack(good, desktop.host).place);

    auto other = desktop.foreignItem("swapped", infoOf(home + "/Movies/swapped"));
    desktop.machine.remove(desktop.files + "swapped");
    desktop.machine.text(desktop.files + "swapped", "another one");
    ++other.identity.inode;
    desktop.expectStaysInTrash(other, "It is not in the Trash any more.");
}

TEST(PutBack, LeavesAnItemWhoseParentMayNotBeWrittenTo) {
    test::expectInSeparateProcess([] {
        test::becomeOrdinaryUser();
        const Desktop desktop;
        const auto item = desktop.trashNew("~/Movies/reel/film");
        const auto parent = desktop.path("~/Movies/reel");
        ASSERT_EQ(::chmod(parent.c_str(), 0500), 0);
        desktop.expectStaysInTrash(item, "You lack the rights for it.");
        fs::remove(parent);
        ASSERT_EQ(::chmod(desktop.path("~/Movies").c_str(), 0500), 0);
        desktop.expectStaysInTrash(item, "You lack the rights for it.");
        ASSERT_EQ(::chmod(desktop.path("~/Movies").c_str(), 0700), 0);
    });
}

TEST(PutBack, BringsBackWhatLiesInAMacTrashByItsAttribute) {
    const SampleMachine machine;
    machine.text("~/Movies/reel/film", "mine");
    BigItem item;
    item.id = machine.path("~/Movies/reel");
    const auto trashing =
        moveToTrash(BigItemTrashGuard(machine.host()).approve(item).value(), machine.host());
    ASSERT_TRUE(trashing.moved);
    machine.text("~/.Trash/of others", "x");
    const auto items = trashedItems(machine.host());
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items.front().name, "of others");
    EXPECT_FALSE(items.front().origin);
    EXPECT_EQ(putBack(*trashing.moved, machine.host()).place, item.id);
    EXPECT_EQ(machine.contentOf("~/Movies/reel/film"), "mine");
    EXPECT_FALSE(extendedAttribute(item.id, "tidewell.origin"));
}

DiskScanner::CleanResult empty(const Desktop& desktop, const std::string& files) {
    CleanupItem item;
    item.target.title = "Trash";
    item.resolvedPaths = {desktop.path(files)};
    return DiskScanner(desktop.host).clean(item);
}

TEST(EmptyingTheTrash, LeavesNoOrphanAndNoStaleSize) {
    const Desktop desktop;
    const std::string sizes = "~/.local/share/Trash/directorysizes";
    desktop.machine.file("~/Movies/reel/one", 8192);
    EXPECT_TRUE(desktop.trash("~/Movies/reel").moved);
    desktop.machine.text(desktop.files + "without a text", "x");
    desktop.machine.text(desktop.infos + "without an entry.trashinfo", "x");
    desktop.machine.text(desktop.infos + "notes", "of the user");
    desktop.machine.text(sizes, "8192 1 reel\n");
    EXPECT_FALSE(empty(desktop, desktop.files).failedTitle);
    EXPECT_TRUE(fs::is_empty(desktop.path(desktop.files)));
    EXPECT_FALSE(desktop.has(desktop.infos + "reel.trashinfo"));
    EXPECT_FALSE(desktop.has(desktop.infos + "without an entry.trashinfo"));
    EXPECT_TRUE(desktop.has(desktop.infos + "notes"));
    EXPECT_EQ(desktop.machine.contentOf(sizes), "");
}

TEST(EmptyingTheTrash, KeepsTheTextAboutWhatStays) {
    test::expectInSeparateProcess([] {
        test::becomeOrdinaryUser();
        const Desktop desktop;
        desktop.machine.text("~/Movies/reel/one", "x");
        const auto item = desktop.trash("~/Movies/reel").moved.value();
        ASSERT_EQ(::chmod(item.path.c_str(), 0500), 0);
        EXPECT_TRUE(empty(desktop, desktop.files).failedTitle);
        EXPECT_TRUE(desktop.has(desktop.infos + "reel.trashinfo"));
        ASSERT_EQ(::chmod(item.path.c_str(), 0700), 0);
        EXPECT_EQ(putBack(item, desktop.host).place, desktop.path("~/Movies/reel"));
    });
}

TEST(DesktopTrash, LosesNothingWhereItIsKilledBetweenItsSteps) {
    const Desktop desktop;
    desktop.machine.text("~/Movies/film", "mine");
    // The text about the entry is written by then, and the entry not moved.
    test::ChildProcess moving(
        [&] { return !test::dieAtCall(SYS_renameat2) || desktop.trash("~/Movies/film").moved; });
    if (moving.succeeded()) GTEST_SKIP() << "may not filter calls";
    EXPECT_EQ(desktop.machine.contentOf("~/Movies/film"), "mine");
    EXPECT_TRUE(desktop.has(desktop.infos + "film.trashinfo"));
    EXPECT_TRUE(desktop.namesInTrash().empty());

    const auto item = desktop.trashNew("~/Movies/film", "mine");
    EXPECT_EQ(item.name, "film 2");
    // The entry is back by then, and the text about it still there.
    test::ChildProcess returning(
        [&] { return test::dieAtCall(SYS_unlinkat) && putBack(item, desktop.host).place; });
    EXPECT_FALSE(returning.succeeded());
    EXPECT_EQ(desktop.machine.contentOf("~/Movies/film"), "mine");
    EXPECT_TRUE(desktop.has(desktop.infos + "film 2.trashinfo"));
    EXPECT_TRUE(desktop.namesInTrash().empty());
    EXPECT_FALSE(empty(desktop, desktop.files).failedTitle);
    EXPECT_TRUE(fs::is_empty(desktop.path(desktop.infos)));
}

// Programs of others that keep to the same rules: what one moves the other lists and puts back.

/// Runs a program as the user of the machine.
test::ProgramRun runAs(const Desktop& desktop, std::vector<std::string> words) {
    std::vector<std::string> all = {"-u", "XDG_DATA_HOME", "HOME=" + desktop.machine.home(),
                                    "XDG_RUNTIME_DIR=" + desktop.machine.home(), "LC_ALL=C.UTF-8"};
    std::ranges::move(words, std::back_inserter(all));
    return test::runProgram("/usr/bin/env", all);
}

bool hasProgram(const std::string& name) {
    return fs::exists("/usr/bin/" + name);
}

const std::vector<std::string> oddNames = {"50% a\xc3\xa4", "plus+[x]", "\xe6\x97\xa5.tar.gz",
                                           "-n"};

bool isAscii(const std::string& name) {
    return std::ranges::all_of(name,
                               [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

struct Counterpart {
    const char* needs;  ///< a file without which it is not there
    std::vector<std::string> session;
    const char* list;     ///< a line for each entry
    const char* restore;  ///< all that came from the places it is given
    const char* empty;
    bool knowsBytes;  ///< else it brings what is not ASCII to a place spelt with escapes, also its
                      ///< own
};

const Counterpart counterparts[] = {
    {"/usr/bin/trash-list",
     {},
     "trash-list",
     "for place; do echo 0 | trash-restore \"$place\"; done",
     "trash-empty",
     true},
    {"/usr/libexec/gvfsd-trash",
     {"dbus-run-session", "--"},
     "gio trash --list",
     "gio list -u trash:/// | while read -r entry; do gio trash --restore \"$entry\"; done",
     "gio trash --empty",
     false},
};

TEST(Counterparts, ListRestoreAndEmptyWhatWasMovedHere) {
    for (const auto& [needs, session, list, restore, emptyAll, knowsBytes] : counterparts) {
        if (!fs::exists(needs)) GTEST_SKIP() << needs << " is not installed";
        const Desktop desktop;
        std::vector<std::string> places;
        for (const auto& name : oddNames)
            places.push_back(desktop.trashNew("~/Movies/" + name, name).origin.value_or(""));
        const auto runScript = [&](const std::string& script) {
            auto words = session;
            words.insert(words.end(), {"sh", "-c", script, "sh"});
            std::ranges::copy(places, std::back_inserter(words));
            return runAs(desktop, words);
        };
        const auto listed = runScript(list).output;
        EXPECT_EQ(std::ranges::count(listed, '\n'), oddNames.size()) << listed;
        const auto restored = runScript(restore);
        for (const auto& name : oddNames)
            if (knowsBytes || isAscii(name)) {
                EXPECT_EQ(desktop.machine.contentOf("~/Movies/" + name), name)
                    << restored.output << restored.errors;
            }
        EXPECT_TRUE(fs::is_empty(desktop.path(desktop.infos))) << needs;
        desktop.trashNew("~/Movies/last");
        runScript(emptyAll);
        EXPECT_TRUE(desktop.namesInTrash().empty()) << needs;
        EXPECT_TRUE(fs::is_empty(desktop.path(desktop.infos))) << needs;
    }
}

TEST(Counterparts, HaveTheirsPutBackHere) {
    for (const auto& program :
         {std::vector<std::string>{"trash-put", "--"}, {"gio", "trash", "--"}}) {
        if (!hasProgram(program.front())) GTEST_SKIP() << program.front() << " is not installed";
        const Desktop desktop;
        desktop.machine.text("~/.local/share/there", "x");
        for (const auto& name : oddNames) {
            desktop.machine.text("~/Movies/" + name, name);
            auto words = program;
            words.push_back(desktop.path("~/Movies/" + name));
            const auto ended = runAs(desktop, words);
            EXPECT_EQ(ended.status, 0) << program.front() << ": " << ended.errors;
        }
        const auto items = trashedItems(desktop.host);
        EXPECT_EQ(items.size(), oddNames.size()) << program.front();
        for (const auto& item : items) {
            EXPECT_TRUE(item.deletedAt) << program.front();
            EXPECT_EQ(putBack(item, desktop.host).problem, "");
        }
        for (const auto& name : oddNames)
            EXPECT_EQ(desktop.machine.contentOf("~/Movies/" + name), name);
        EXPECT_TRUE(fs::is_empty(desktop.path(desktop.infos)));
    }
}

/// A disk of its own below the home folder.
bool mountDisk(const Desktop& desktop) {
    desktop.machine.folder("~/Movies/disk");
    return test::enterOwnMountSpace() &&
           ::mount("tmpfs", desktop.path("~/Movies/disk").c_str(), "tmpfs", 0, "size=1m") == 0;
}

TEST(DesktopTrash, OfAnotherVolumeIsTheSharedOneWhereThatIsSafe) {
    test::expectInSeparateProcess([] {
        const Desktop desktop;
        if (!mountDisk(desktop)) GTEST_SKIP() << "may not mount";
        const auto user = std::to_string(::geteuid());
        const std::string top = "~/Movies/disk/";
        const auto own = top + ".Trash-" + user;
        desktop.machine.folder(top + ".Trash");
        const auto item = desktop.trashNew(top + "a b/film");
        EXPECT_EQ(item.path, desktop.path(own + "/files/film"));
        EXPECT_NE(
            desktop.machine.contentOf(own + "/info/film.trashinfo").find("\nPath=a%20b/film\n"),
            std::string::npos);
        EXPECT_FALSE(desktop.has("~/.local/share/Trash"));
        EXPECT_EQ(putBack(item, desktop.host).place, desktop.path(top + "a b/film"));

        ASSERT_EQ(::chmod(desktop.path(top + ".Trash").c_str(), 01777), 0);
        EXPECT_EQ(desktop.trashNew(top + "film").path,
                  desktop.path(top + ".Trash/" + user + "/files/film"));
        desktop.machine.remove(top + ".Trash");
        desktop.machine.folder("~/Movies/disk/elsewhere");
        ASSERT_EQ(::chmod(desktop.path(top + "elsewhere").c_str(), 01777), 0);
        desktop.machine.link(top + ".Trash", "elsewhere");
        EXPECT_EQ(desktop.trashNew(top + "film").path, desktop.path(own + "/files/film"));

        EXPECT_EQ(trashFolders(desktop.host), std::vector{desktop.path(own + "/files")});
        const auto listed = runAs(desktop, {"trash-list"});
        EXPECT_TRUE(!hasProgram("trash-list") ||
                    listed.output.find(desktop.path(top + "film") + "\n") != std::string::npos)
            << listed.output << listed.errors;
        desktop.machine.text(own + "/files/foreign", "x");
        for (const auto& path : {desktop.machine.home() + "/Movies/x", std::string("../x")}) {
            desktop.machine.text(own + "/info/foreign.trashinfo", infoOf(path));
            const auto items = trashedItems(desktop.host);
            const auto foreign = std::ranges::find(items, "foreign", &TrashedItem::name);
            ASSERT_NE(foreign, items.end());
            desktop.expectStaysInTrash(*foreign, "The Trash does not say where it came from.");
        }
        EXPECT_FALSE(empty(desktop, own + "/files").failedTitle);
        EXPECT_TRUE(fs::is_empty(desktop.path(own + "/files")));
        EXPECT_TRUE(fs::is_empty(desktop.path(own + "/info")));
        auto elsewhere = *desktop.trash(top + "elsewhere").moved;
        elsewhere.origin = desktop.machine.root() + "/outside";
        desktop.expectStaysInTrash(elsewhere,
                                   "It came from another disk than the one on which it lies now.");
    });
}

}  // namespace
}  // namespace tidewell
