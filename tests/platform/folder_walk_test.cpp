#include "platform/folder_walk.h"

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/hostile_tree.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell::test {
namespace {

using Lines = std::vector<std::string>;

Descent enterAll(const WalkEntry&) {
    return Descent::enter;
}

/// What is visited, in order: each entry's level and its path below the folder.
Lines visited(const std::string& folder, HiddenEntries hidden = HiddenEntries::visit,
              const std::function<Descent(const WalkEntry&)>& decide = enterAll) {
    Lines lines;
    walkFolder(folder, hidden, [&](const WalkEntry& entry) {
        EXPECT_EQ(entry.path.substr(entry.path.size() - entry.name.size()), entry.name);
        const auto below = entry.path.substr(folder.size() + (folder.ends_with('/') ? 0 : 1));
        lines.push_back(std::to_string(entry.level) + " " + std::string(below));
        return decide(entry);
    });
    return lines;
}

TEST(FolderWalk, VisitsParentsFirstAndSiblingsByTheirBytes) {
    const SampleMachine machine;
    machine.file("~/t/b/2/x");
    machine.file("~/t/b/1");
    machine.file("~/t/B/y");
    machine.file("~/t/.h/z");
    machine.file("~/t/line\nbreak");
    machine.file("~/t/not\xfftext");
    const Lines expected = {"1 .h",  "2 .h/z", "1 B",     "2 B/y",         "1 b",
                            "2 b/1", "2 b/2",  "3 b/2/x", "1 line\nbreak", "1 not\xfftext"};
    EXPECT_EQ(visited(machine.path("~/t")), expected);
    EXPECT_EQ(visited(machine.path("~/t") + "/"), expected);
}

TEST(FolderWalk, NeverEntersLinksAndPackages) {
    const SampleMachine machine;
    machine.file("~/elsewhere/kept");
    machine.file("~/t/Tool.APP/Contents/x");
    machine.file("~/t/.app/inside");
    machine.link("~/t/link", machine.path("~/elsewhere"));
    machine.link("~/start", machine.path("~/t"));
    EXPECT_EQ(visited(machine.path("~/t")),
              (Lines{"1 .app", "2 .app/inside", "1 Tool.APP", "1 link"}));
    EXPECT_EQ(visited(machine.path("~/t/Tool.APP")), (Lines{"1 Contents", "2 Contents/x"}));
    for (const auto* nothing : {"~/start", "~/start/", "~/missing", "~/elsewhere/kept"})
        EXPECT_EQ(visited(machine.path(nothing)), Lines{}) << nothing;
}

TEST(FolderWalk, EntersOnlyWhatTheVisitorWantsAndTellsItAllSiblings) {
    const SampleMachine machine;
    machine.file("~/t/.hidden/x");
    machine.file("~/t/in/file");
    machine.link("~/t/in/link", "file");
    machine.file("~/t/out/x");
    ASSERT_EQ(::mkfifo(machine.path("~/t/in/pipe").c_str(), 0600), 0);
    Lines siblingsOfFile;
    const auto decide = [&](const WalkEntry& entry) {
        if (entry.name == "file") {
            for (const auto& [name, type] : entry.siblings)
                siblingsOfFile.push_back(name + std::to_string(static_cast<int>(type)));
        }
        if (entry.name == "in") {
            EXPECT_EQ(entry.siblings.size(), 3U) << "the hidden one counts";
        }
        return entry.name == "out" ? Descent::skip : Descent::enter;
    };
    EXPECT_EQ(visited(machine.path("~/t"), HiddenEntries::passOver, decide),
              (Lines{"1 in", "2 in/file", "2 in/link", "2 in/pipe", "1 out"}));
    EXPECT_EQ(siblingsOfFile, (Lines{"file1", "link2", "pipe3"}));
}

TEST(FolderWalk, GoesDeeperThanPathsAndDescriptorsReach) {
    expectInSeparateProcess([] {
        constexpr int levels = 60;
        const std::string longName(200, 'm');
        const SampleMachine machine;
        makeChain(machine.home(), levels, longName, [](int folder) {
            ::close(makeFolderAt(folder, "after it"));
            const int before = makeFolderAt(folder, "z");
            makeFileAt(before, "file", 0);
            ::close(before);
        });
        limitDescriptors(40);
        const auto all = visited(machine.home());
        EXPECT_EQ(all.size(), levels * 4U);
        EXPECT_EQ(all.back(), "3 " + longName + "/z/file") << "the last to be come back to";
        limitDescriptors(1024);  // which the removal of the machine needs
    });
}

TEST(FolderWalk, PassesOverWhatItMayNotRead) {
    expectInSeparateProcess([] {
        becomeOrdinaryUser();
        const SampleMachine machine;
        machine.file("~/t/closed/x");
        machine.file("~/t/open/x");
        ASSERT_EQ(::chmod(machine.path("~/t/closed").c_str(), 0), 0);
        EXPECT_EQ(visited(machine.path("~/t")), (Lines{"1 closed", "1 open", "2 open/x"}));
        EXPECT_EQ(visited(machine.path("~/t/closed")), Lines{});
    });
}

TEST(FolderWalk, EntersMountsButNoFolderInsideItself) {
    expectInSeparateProcess([] {
        const SampleMachine machine;
        machine.file("~/t/a/b/loop/covered");
        machine.file("~/t/a/b/mounted/covered");
        machine.file("~/u/seen");
        if (!enterOwnMountSpace()) skipSeparateProcess();
        const auto loop = machine.path("~/t/a/b/loop");
        const auto mounted = machine.path("~/t/a/b/mounted");
        ASSERT_EQ(::mount(machine.path("~/t/a").c_str(), loop.c_str(), nullptr, MS_BIND, nullptr),
                  0);
        ASSERT_EQ(::mount(machine.path("~/u").c_str(), mounted.c_str(), nullptr, MS_BIND, nullptr),
                  0);
        EXPECT_EQ(visited(machine.path("~/t")),
                  (Lines{"1 a", "2 a/b", "3 a/b/loop", "3 a/b/mounted", "4 a/b/mounted/seen"}));
        ::umount(loop.c_str());
        ::umount(mounted.c_str());
    });
}

TEST(FolderWalk, KnowsPackagesByTheirExtensionInAnyCase) {
    for (const auto* package : {"a.app", "a.prefPane", "A.PHOTOSLIBRARY", "a.b.pkg"})
        EXPECT_TRUE(isPackageName(package)) << package;
    for (const auto* folder : {"app", ".app", "a.apps", "a.app.d", "a.", ""})
        EXPECT_FALSE(isPackageName(folder)) << folder;
}

}  // namespace
}  // namespace tidewell::test
