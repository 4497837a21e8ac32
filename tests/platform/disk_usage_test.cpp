#include "platform/disk_usage.h"

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/reach.h"
#include "support/hostile_tree.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell::test {
namespace {

constexpr ByteCount block = 4096;

/// The same figure by the plainest means: one thread, one path after the other.
ByteCount plainlyMeasured(const std::string& folder) {
    ByteCount total = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        struct stat status;
        if (::lstat(entry.path().c_str(), &status) == 0 && S_ISREG(status.st_mode))
            total += status.st_blocks * 512;
    }
    return total;
}

/// Folders in folders with files in all of them, in a shape that splits unevenly.
void makeBush(const SampleMachine& machine, const std::string& path, int depth) {
    for (int file = 0; file < 5 + depth * 7; ++file)
        machine.file(path + "/f" + std::to_string(file), (file % 3) * block);
    for (int folder = 0; folder < depth; ++folder)
        makeBush(machine, path + "/d" + std::to_string(folder), depth - 1 - folder / 2);
}

/// One folder of many files and of more sub-folders than are kept in memory at once.
void makeWide(const SampleMachine& machine, const std::string& path, int entries) {
    machine.folder(path);
    const auto folder = posix::openFolder(machine.path(path));
    for (int entry = 0; entry < entries; ++entry) {
        const auto name = std::string(40, 'n') + std::to_string(entry);
        makeFileAt(folder.get(), name, entry % 4 == 0 ? block : 0);
        const posix::Descriptor below(makeFolderAt(folder.get(), "folder " + name));
        if (entry % 100 == 0) makeFileAt(below.get(), "file", block);
    }
}

void makeOddities(const SampleMachine& machine) {
    machine.file("~/t/odd/not\xfftext/line\nbreak", 3 * block);
    machine.file("~/t/odd/twice", 2 * block);
    std::filesystem::create_hard_link(machine.path("~/t/odd/twice"), machine.path("~/t/odd/again"));
    machine.file("~/elsewhere", 99 * block);
    machine.link("~/t/odd/link", machine.path("~/elsewhere"));
    machine.link("~/t/odd/loop", "..");
    machine.link("~/t/odd/dangling", "nowhere");
    machine.file("~/t/odd/sparse", block);
    std::filesystem::resize_file(machine.path("~/t/odd/sparse"), 1'000'000'000);
    ASSERT_EQ(::mkfifo(machine.path("~/t/odd/pipe").c_str(), 0600), 0);
    const posix::Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    machine.path("~/t/odd/socket").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(socket.get(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
}

TEST(DiskUsage, CountsAllocatedBytesOfRegularFilesAlone) {
    const SampleMachine machine;
    makeOddities(machine);
    EXPECT_EQ(allocatedSize(machine.path("~/t")), 8 * block);
    const std::vector<std::pair<std::string, ByteCount>> rows = {
        {"~/t/odd/twice", 2 * block}, {"~/t/odd/sparse", block}, {"~/t/odd/link", 0},
        {"~/t/odd/loop", 0},          {"~/t/odd/loop/", 0},      {"~/t/odd/dangling", 0},
        {"~/t/odd/pipe", 0},          {"~/t/odd/socket", 0},     {"~/missing", 0},
        {"~/elsewhere/x", 0},         {"~/t/", 8 * block},
    };
    for (const auto& [path, size] : rows)
        EXPECT_EQ(allocatedSize(machine.path(path)), size) << path;
}

TEST(DiskUsage, OfSeveralPathsTogetherCountsAFileOnceAndOnlyWithAllItsNames) {
    const SampleMachine machine;
    const auto linked = [&](const char* from, const std::string& to) {
        machine.folder(parentPath(to));
        std::filesystem::create_hard_link(machine.path(from), machine.path(to));
    };
    machine.file("~/a/plain", block);
    machine.file("~/a/inside", 2 * block);
    machine.file("~/a/across", 4 * block);
    machine.file("~/a/outside", 8 * block);
    linked("~/a/inside", "~/a/deep/again");
    linked("~/a/inside", "~/a/third");
    linked("~/a/across", "~/b/across");
    linked("~/a/outside", "~/elsewhere");
    for (int name = 0; name < 5000; ++name) linked("~/a/inside", "~/b/" + std::to_string(name));
    for (int file = 0; file < 3000; ++file) {
        const auto name = "~/a/store/" + std::to_string(file);
        machine.file(name, 0);
        linked(name.c_str(), "~/b/store/" + std::to_string(file));
    }
    struct Row {
        std::vector<std::string> paths;
        ByteCount freed;
        ByteCount shared;
    };
    const std::vector<Row> rows = {
        {{"~/a"}, block, 14 * block},
        {{"~/a", "~/b"}, 7 * block, 8 * block},
        {{"~/b", "~/a", "~/elsewhere"}, 15 * block, 0},
        {{"~/a/outside"}, 0, 8 * block},
        {{"~/missing"}, 0, 0},
    };
    for (auto [paths, freed, shared] : rows) {
        for (auto& path : paths) path = machine.path(path);
        const auto usage = freedByRemoving(paths);
        EXPECT_EQ(usage.freedBytes, freed) << paths.front() << " and so on: " << paths.size();
        EXPECT_EQ(usage.sharedBytes, shared) << paths.front() << " and so on: " << paths.size();
    }
}

TEST(DiskUsage, IsThatOfAPlainWalkWhateverTheShapeAndHoweverManyAsk) {
    const SampleMachine machine;
    makeBush(machine, "~/t/bush", 5);
    makeWide(machine, "~/t/wide", 1600);
    makeOddities(machine);
    const auto expected = plainlyMeasured(machine.path("~/t"));
    std::vector<std::jthread> callers;
    for (int caller = 0; caller < 8; ++caller)
        callers.emplace_back([&] {
            for (int round = 0; round < 3; ++round)
                EXPECT_EQ(allocatedSize(machine.path("~/t")), expected);
        });
}

TEST(DiskUsage, ReachesWherePathsAndDescriptorsDoNot) {
    for (const unsigned descriptors : {64U, 1024U})
        expectInSeparateProcess([descriptors] {
            constexpr int levels = 60;
            const SampleMachine machine;
            makeChain(machine.home(), levels, std::string(200, 'm'), [](int folder) {
                makeFileAt(folder, "file", block);
                for (const auto* side : {"a", "b", "y", "z"}) {
                    const posix::Descriptor below(makeFolderAt(folder, side));
                    makeFileAt(below.get(), "file", 2 * block);
                    ::close(makeFolderAt(below.get(), "empty"));
                }
            });
            limitDescriptors(descriptors);
            for (int round = 0; round < 10; ++round)
                EXPECT_EQ(allocatedSize(machine.home()), levels * 9 * block);
            limitDescriptors(1024);  // which the removal of the machine needs
        });
}

TEST(DiskUsage, LeavesOutWhatItMayNotRead) {
    expectInSeparateProcess([] {
        becomeOrdinaryUser();
        const SampleMachine machine;
        machine.file("~/t/closed/x", 5 * block);
        machine.file("~/t/listed/x", 7 * block);
        machine.file("~/t/open/x", block);
        ASSERT_EQ(::chmod(machine.path("~/t/closed").c_str(), 0), 0);
        ASSERT_EQ(::chmod(machine.path("~/t/listed").c_str(), 0400), 0);
        EXPECT_EQ(allocatedSize(machine.path("~/t")), block);
        EXPECT_EQ(allocatedSize(machine.path("~/t/closed")), 0);
        EXPECT_EQ(diskUsage(machine.path("~/t")).unread.count(), 2U);
    });
}

TEST(DiskUsage, CrossesMountsButEntersNoFolderInsideItself) {
    expectInSeparateProcess([] {
        const SampleMachine machine;
        machine.file("~/t/a/file", 2 * block);
        machine.file("~/t/a/b/loop/covered", 40 * block);
        machine.file("~/t/a/b/mounted/covered", 50 * block);
        machine.file("~/u/file", 5 * block);
        if (!enterOwnMountSpace()) skipSeparateProcess();
        const auto mount = [&](const char* from, const std::string& to) {
            ASSERT_EQ(::mount(machine.path(from).c_str(), to.c_str(), nullptr, MS_BIND, nullptr),
                      0);
        };
        const auto loop = machine.path("~/t/a/b/loop");
        const auto mounted = machine.path("~/t/a/b/mounted");
        mount("~/t/a", loop);
        mount("~/u", mounted);
        EXPECT_EQ(allocatedSize(machine.path("~/t")), 7 * block);
        ::umount(loop.c_str());
        ::umount(mounted.c_str());
    });
}

TEST(DiskUsage, TakesFilesThatComeAndGoAsTheyAre) {
    const SampleMachine machine;
    makeBush(machine, "~/t/steady", 5);
    machine.folder("~/t/changing");
    const auto steady = allocatedSize(machine.path("~/t"));
    constexpr ByteCount changing = 64;
    std::atomic<bool> isOver = false;
    std::jthread changer([&] {
        while (!isOver) {
            for (int file = 0; file < changing; ++file)
                machine.file("~/t/changing/" + std::to_string(file) + "/x", block);
            for (int file = 0; file < changing; ++file)
                std::filesystem::remove_all(machine.path("~/t/changing/" + std::to_string(file)));
        }
    });
    for (int round = 0; round < 20; ++round) {
        const auto size = allocatedSize(machine.path("~/t"));
        EXPECT_GE(size, steady);
        EXPECT_LE(size, steady + changing * block);
    }
    isOver = true;
}

}  // namespace
}  // namespace tidewell::test
