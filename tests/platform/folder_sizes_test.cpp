#include "platform/folder_sizes.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <map>
#include <random>

#include "platform/freed_usage.h"
#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "support/hostile_tree.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell::test {
namespace {

namespace fs = std::filesystem;

constexpr ByteCount block = 4096;

std::string pathOf(const FolderSizes& sizes, std::uint32_t at, const std::string& top) {
    return at == 0 ? top : joinPath(pathOf(sizes, sizes[at].parent, top), sizes[at].name);
}

ByteCount measured(const std::string& path, System system) {
    return freedUsage(path, system).freedBytes;
}

/// Folders and files of all sizes, odd names, and files with names in one folder, in several, and
/// outside.
void makeJungle(const SampleMachine& machine, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<std::string> folders = {"~/t"};
    std::vector<std::string> files;
    machine.folder("~/t");
    for (int entry = 0; entry < 600; ++entry) {
        const auto in = folders[random() % folders.size()];
        auto path = in + "/" + std::to_string(entry);
        if (random() % 20 == 0) path += "\xff\n" + std::string(240, 'x');
        if (random() % 5 == 0) {
            machine.folder(path);
            folders.push_back(path);
        } else if (random() % 4 == 0 && !files.empty()) {
            fs::create_hard_link(machine.path(files[random() % files.size()]), machine.path(path));
        } else {
            machine.file(path, random() % 10 == 0 ? random() % 300 * block : random() % 3 * block);
            files.push_back(path);
        }
    }
    machine.link("~/t/link", machine.home());
    for (int name = 0; name < 20; ++name)
        fs::create_hard_link(machine.path(files[random() % files.size()]),
                             machine.path("~/outside " + std::to_string(name)));
}

/// Each is what a measure of its own says, what is large enough is there, and all adds up.
void expectTrue(const FolderSizes& sizes, const std::string& top, System system) {
    std::map<std::string, ByteCount> told;
    for (std::uint32_t at = 0; at < sizes.size(); ++at) {
        const auto& entry = sizes[at];
        ByteCount inChildren = 0;
        for (std::uint32_t child = 0; child < entry.childCount; ++child)
            inChildren += sizes[entry.firstChild + child].bytes;
        EXPECT_TRUE(entry.childCount == 0 || inChildren == entry.bytes) << entry.name;
        if (entry.type == SizedEntry::Type::smallerEntries) continue;
        const auto path = pathOf(sizes, at, top);
        EXPECT_EQ(entry.bytes, measured(path, system)) << path;
        told.emplace(path, entry.bytes);
    }
    for (const auto& entry : fs::recursive_directory_iterator(top)) {
        const auto bytes = measured(entry.path().string(), system);
        const bool isLarge = bytes > 0 && bytes * 2000 >= sizes.front().bytes;
        EXPECT_EQ(told.contains(entry.path().string()), isLarge) << entry.path() << bytes;
    }
}

TEST(FolderSizes, AreWhatAMeasureOfEachFolderSays) {
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        const SampleMachine machine;
        makeJungle(machine, seed);
        for (const auto system : {System::macOS, System::linux}) {
            const auto top = machine.path("~/t");
            const auto sizes = folderSizes(top, {.system = system});
            ASSERT_FALSE(sizes.empty());
            expectTrue(sizes, top, system);
        }
    }
}

TEST(FolderSizes, HoldDeepAndWideTreesWithoutGrowingWithThem) {
    const SampleMachine machine;
    constexpr int levels = 3000;
    machine.folder("~/deep");
    makeChain(machine.path("~/deep"), levels, "d",
              [](int folder) { makeFileAt(folder, "file", block); });
    const auto deep = folderSizes(machine.path("~/deep"), {.system = System::linux});
    EXPECT_EQ(deep.front().bytes, levels * block);
    EXPECT_LE(deep.size(), 20'000U);
    machine.folder("~/wide");
    const posix::Descriptor wide(::open(machine.path("~/wide").c_str(), O_RDONLY | O_DIRECTORY));
    for (int file = 0; file < 9000; ++file) makeFileAt(wide.get(), std::to_string(file), block);
    const auto flat = folderSizes(machine.path("~/wide"), {.system = System::linux});
    ASSERT_EQ(flat.size(), 2U);
    EXPECT_EQ(flat[1].type, SizedEntry::Type::smallerEntries);
    EXPECT_EQ(flat[1].count, 9000U);
}

TEST(FolderSizes, MarkWhereSomethingCouldNotBeReadAndEndWhenTheyAreStopped) {
    expectInSeparateProcess([] {
        becomeOrdinaryUser();
        const SampleMachine machine;
        machine.file("~/t/a/closed/x", block);
        machine.file("~/t/b/x", block);
        ASSERT_EQ(::chmod(machine.path("~/t/a/closed").c_str(), 0), 0);
        machine.file("~/t/a/y", 2 * block);
        const auto sizes = folderSizes(machine.path("~/t"), {.system = System::linux});
        ASSERT_GE(sizes.size(), 3U);
        EXPECT_TRUE(sizes[0].isUnread && sizes[1].name == "a" && sizes[1].isUnread);
        EXPECT_FALSE(sizes[2].isUnread);
        StopSource stopped;
        const FolderSizing how{.system = System::linux,
                               .stop = stopped.get_token(),
                               .progress = [&](ByteCount) { stopped.request_stop(); }};
        EXPECT_TRUE(folderSizes(machine.path("~/t"), how).empty());
        EXPECT_TRUE(folderSizes(machine.path("~/missing"), {.system = System::linux}).empty());
        EXPECT_TRUE(folderSizes(machine.path("~/t/b/x"), {.system = System::linux}).empty());
        machine.folder("~/none");
        EXPECT_EQ(folderSizes(machine.path("~/none"), {.system = System::linux}).size(), 1U);
    });
}

}  // namespace
}  // namespace tidewell::test
