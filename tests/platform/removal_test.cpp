#include "platform/removal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <thread>

#include "cleanup/deletion_guard.h"
#include "platform/disk_usage.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell {
namespace {

using test::becomeOrdinaryUser;
using test::enterOwnMountSpace;
using test::expectInSeparateProcess;
using test::limitDescriptors;
using test::SampleMachine;
using test::skipSeparateProcess;
namespace fs = std::filesystem;

DeletablePath approved(const SampleMachine& machine, std::string_view path) {
    return DeletionGuard(machine.host()).approve(machine.path(path)).value();
}

Removal removeAt(const SampleMachine& machine, std::string_view path) {
    return removeItem(approved(machine, path));
}

Removal emptyAt(const SampleMachine& machine, std::string_view path) {
    const auto folder = approved(machine, path);
    return emptyFolder(folder, DeletionGuard(machine.host()).childGuard(folder));
}

bool mountAgain(const std::string& source, const std::string& target) {
    return ::mount(source.c_str(), target.c_str(), nullptr, MS_BIND, nullptr) == 0;
}

/// Makes the process live on a kernel without the call that opens a path confined.
bool loseConfinedOpen() {
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat2, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{.len = std::size(rules), .filter = rules};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// One level below another, each with a file, until it is too deep for any path.
void makeChain(const std::string& top, int depth) {
    fs::create_directories(top);
    int at = ::open(top.c_str(), O_PATH | O_DIRECTORY);
    for (int level = 0; level < depth; ++level) {
        ::close(::openat(at, "file", O_CREAT | O_WRONLY, 0600));
        ::mkdirat(at, "folder", 0700);
        const int next = ::openat(at, "folder", O_PATH | O_DIRECTORY);
        ::close(at);
        at = next;
    }
    ::close(at);
}

void makeFlat(const SampleMachine& machine, const std::string& top, int folders, int files) {
    for (int folder = 0; folder < folders; ++folder)
        for (int file = 0; file < files; ++file)
            machine.file(top + "/" + std::to_string(folder) + "/" + std::to_string(file), 0);
}

TEST(Removal, RemovesWhateverStandsThereAndFollowsNothing) {
    const SampleMachine machine;
    machine.text("~/Documents/thesis", "x");
    machine.file("~/Library/file");
    machine.link("~/Library/file-link", machine.path("~/Documents/thesis"));
    machine.link("~/Library/folder-link", machine.path("~/Documents"));
    machine.link("~/Library/home-link", machine.home());
    machine.link("~/Library/dangling", "nowhere");
    machine.file("~/Library/tree/a/b/\xff\xfe\n\x01 name");
    machine.link("~/Library/tree/a/home", machine.home());
    machine.link("~/Library/tree/loop", ".");
    ::mkfifo(machine.path("~/Library/tree/fifo").c_str(), 0600);
    ::mkfifo(machine.path("~/Library/fifo").c_str(), 0600);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    machine.path("~/Library/tree/s").copy(address.sun_path, sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(socket);
    for (const auto* path :
         {"~/Library/file", "~/Library/file-link", "~/Library/folder-link", "~/Library/home-link",
          "~/Library/dangling", "~/Library/tree", "~/Library/fifo", "~/Library/missing"}) {
        EXPECT_EQ(removeAt(machine, path), Removal::complete) << path;
        EXPECT_FALSE(machine.has(path)) << path;
    }
    EXPECT_TRUE(machine.has("~/Documents/thesis") && machine.has("~/Library"));
}

TEST(Removal, EmptiesAFolderAndLeavesItStanding) {
    const SampleMachine machine;
    machine.text("~/Documents/thesis", "x");
    machine.file("~/Library/Caches/a/b/c");
    machine.file("~/Library/Caches/.hidden");
    machine.link("~/Library/Caches/out", machine.path("~/Documents"));
    machine.link("~/Library/Linked", machine.path("~/Documents"));
    EXPECT_EQ(emptyAt(machine, "~/Library/Caches"), Removal::complete);
    EXPECT_TRUE(fs::is_empty(machine.path("~/Library/Caches")));
    EXPECT_EQ(emptyAt(machine, "~/Library/Linked"), Removal::incomplete);
    EXPECT_EQ(emptyAt(machine, "~/Library/missing"), Removal::incomplete);
    EXPECT_TRUE(machine.has("~/Documents/thesis"));
}

TEST(Removal, AsksTheGuardForEachChildAndBelievesOnlyAnAnswerAboutIt) {
    const SampleMachine machine;
    for (const auto* name : {"a/x", "kept/x", "mistaken/x", "b"})
        machine.file("~/.cache/" + std::string(name));
    machine.file("~/Library/other/mistaken");
    const auto folder = approved(machine, "~/.cache");
    const auto other = approved(machine, "~/Library/other");
    const DeletionGuard guard(machine.host());
    const auto answer = [&](std::string_view name) -> std::optional<DeletablePath> {
        if (name == "kept") return std::nullopt;
        return guard.childGuard(name == "mistaken" ? other : folder)(name);
    };
    EXPECT_EQ(emptyFolder(folder, answer), Removal::incomplete);
    EXPECT_TRUE(machine.has("~/.cache/kept/x") && machine.has("~/.cache/mistaken/x"));
    EXPECT_TRUE(machine.has("~/Library/other/mistaken"));
    EXPECT_FALSE(machine.has("~/.cache/a") || machine.has("~/.cache/b"));
}

TEST(Removal, IsNotLedAwayByALinkPutInPlaceMeanwhile) {
    const SampleMachine machine;
    machine.text("~/Documents/app/file", "x");
    machine.text("~/Documents/file", "x");
    for (const auto* top : {"~/first", "~/second", "~/third"})
        machine.file(std::string(top) + "/app/file");
    const auto swap = [&](std::string_view path, const char* target) {
        fs::rename(machine.path(path), machine.path(path) + ".moved");
        machine.link(path, machine.path(target));
    };
    const auto item = approved(machine, "~/first/app");
    swap("~/first", "~/Documents");
    EXPECT_EQ(removeItem(item), Removal::incomplete);
    const auto folder = approved(machine, "~/second/app");
    swap("~/second", "~/Documents");
    const DeletionGuard guard(machine.host());
    EXPECT_EQ(emptyFolder(folder, guard.childGuard(folder)), Removal::incomplete);
    // Swapped when it was listed already, and is about to be removed.
    const auto third = approved(machine, "~/third");
    EXPECT_EQ(emptyFolder(third,
                          [&](std::string_view name) {
                              swap("~/third/app", "~/Documents");
                              return guard.childGuard(third)(name);
                          }),
              Removal::complete);
    EXPECT_FALSE(machine.has("~/third/app"));
    EXPECT_TRUE(machine.has("~/third/app.moved/file") && machine.has("~/first.moved/app/file"));
    EXPECT_TRUE(machine.has("~/Documents/app/file") && machine.has("~/Documents/file"));
}

/// Exchanges each sub-folder of a tree with a link into Documents, over and over, while the tree is
/// removed: a name that was listed as a folder is as likely as not a link when it is entered.
void surviveSwaps() {
    const SampleMachine machine;
    constexpr int victims = 50;
    constexpr int folders = 50;
    std::atomic<int> swaps = 0;
    for (int file = 0; file < victims; ++file)
        machine.file("~/Documents/" + std::to_string(file), 0);
    for (int round = 0; round < 10 || (swaps < 3000 && round < 200); ++round) {
        makeFlat(machine, "~/Library/tree", folders, 2);
        std::vector<std::pair<std::string, std::string>> pairs;
        for (int folder = 0; folder < folders; ++folder) {
            const auto name = std::to_string(round) + "/" + std::to_string(folder);
            machine.link("~/Library/aside/" + name, "../../Documents");
            pairs.emplace_back(machine.path("~/Library/tree/" + std::to_string(folder)),
                               machine.path("~/Library/aside/" + name));
        }
        std::atomic<bool> isOver = false;
        std::thread swapping([&] {
            while (!isOver)
                for (const auto& [folder, link] : pairs)
                    swaps += ::syscall(SYS_renameat2, AT_FDCWD, folder.c_str(), AT_FDCWD,
                                       link.c_str(), RENAME_EXCHANGE) == 0;
        });
        removeAt(machine, "~/Library/tree");
        isOver = true;
        swapping.join();
    }
    int left = 0;
    for (int file = 0; file < victims; ++file)
        left += machine.has("~/Documents/" + std::to_string(file));
    EXPECT_EQ(left, victims);
    EXPECT_GE(swaps, 1000);
}

TEST(Removal, LosesNothingToThousandsOfSwapsWhileItRuns) {
    surviveSwaps();
}

/// Bind mounts of one disk, which its number does not tell apart: as a child, far down, as a file,
/// and in place of the folder that is emptied.
void surviveMounts() {
    const SampleMachine machine;
    machine.text("~/films/thesis", "x");
    for (const auto* folder : {"~/Library/tree/a/mount", "~/.cache/mount", "~/.npm"})
        machine.folder(folder);
    machine.file("~/Library/tree/a/file");
    machine.file("~/.cache/file");
    if (!enterOwnMountSpace()) skipSeparateProcess();
    for (const auto* folder : {"~/Library/tree/a/mount", "~/.cache/mount", "~/.npm"})
        ASSERT_TRUE(mountAgain(machine.path("~/films"), machine.path(folder)));
    EXPECT_EQ(removeAt(machine, "~/Library/tree"), Removal::incomplete);
    EXPECT_EQ(emptyAt(machine, "~/.cache"), Removal::incomplete);
    EXPECT_EQ(emptyAt(machine, "~/.npm"), Removal::incomplete);
    EXPECT_EQ(removeAt(machine, "~/.npm"), Removal::incomplete);
    EXPECT_TRUE(machine.has("~/films/thesis"));
    for (const auto* folder : {"~/Library/tree/a/mount", "~/.cache/mount", "~/.npm"})
        ::umount2(machine.path(folder).c_str(), MNT_DETACH);
    EXPECT_TRUE(machine.has("~/films/thesis"));
    EXPECT_FALSE(machine.has("~/Library/tree/a/file") || machine.has("~/.cache/file"));
}

TEST(Removal, DoesNotEnterWhatIsMountedThere) {
    expectInSeparateProcess(surviveMounts);
}

TEST(Removal, KeepsItsPromisesOnAKernelThatCannotOpenConfined) {
    expectInSeparateProcess([] {
        if (!loseConfinedOpen()) skipSeparateProcess();
        surviveSwaps();
        surviveMounts();
    });
}

int entriesIn(const std::string& folder) {
    int count = 0;
    std::error_code missing;
    for (fs::directory_iterator entry(folder, missing), end; entry != end; entry.increment(missing))
        ++count;
    return count;
}

/// A folder that is moved away while it is emptied, or one that it lies in.
struct Move {
    std::string removed;
    std::string filled;  ///< where the many files lie
    std::string from;
    std::string to;
    std::string filledAfterwards;
};

/// Threads that are each between two looks at where their folder lies.
constexpr int mayBeLost = 8 * 64;

/// Moves as soon as the first file is gone, and counts what is there from then on.
void losesNothingTo(const Move& move) {
    const SampleMachine machine;
    machine.folder("~/Applications");
    machine.folder("~/Documents");
    constexpr int files = 8000;
    machine.folder(move.filled);
    const int filled = ::open(machine.path(move.filled).c_str(), O_PATH | O_DIRECTORY);
    for (int file = 0; file < files; ++file)
        ::close(::openat(filled, std::to_string(file).c_str(), O_CREAT | O_WRONLY, 0600));
    ::close(filled);
    int whenMoved = 0;
    std::thread moving([&] {
        const auto folder = machine.path(move.filled);
        const auto untouched = fs::last_write_time(folder);
        std::error_code gone;
        while (fs::last_write_time(folder, gone) == untouched && !gone) std::this_thread::yield();
        const auto result =
            std::rename(machine.path(move.from).c_str(), machine.path(move.to).c_str());
        whenMoved = result == 0 ? entriesIn(machine.path(move.filledAfterwards)) : 0;
    });
    const auto removal = removeAt(machine, move.removed);
    moving.join();
    EXPECT_EQ(removal, Removal::incomplete) << move.to;
    EXPECT_GT(whenMoved, mayBeLost) << "moved too late to tell";
    EXPECT_GE(entriesIn(machine.path(move.filledAfterwards)), whenMoved - mayBeLost) << move.to;
}

const std::vector<Move>& moves() {
    static const std::vector<Move> all = {
        {.removed = "~/.cache/updater",
         .filled = "~/.cache/updater/stage/New.app",
         .from = "~/.cache/updater/stage/New.app",
         .to = "~/Applications/New.app",
         .filledAfterwards = "~/Applications/New.app"},
        {.removed = "~/.cache/updater",
         .filled = "~/.cache/updater/stage/New.app/Contents",
         .from = "~/.cache/updater/stage",
         .to = "~/Documents/stage",
         .filledAfterwards = "~/Documents/stage/New.app/Contents"},
        {.removed = "~/.cache/updater",
         .filled = "~/.cache/updater",
         .from = "~/.cache",
         .to = "~/Documents/cache",
         .filledAfterwards = "~/Documents/cache/updater"},
        {.removed = "~/.cache/updater",
         .filled = "~/.cache/updater/stage",
         .from = "~/.cache/updater/stage",
         .to = "~/.cache/updater/kept",
         .filledAfterwards = "~/.cache/updater/kept"},
    };
    return all;
}

TEST(Removal, StopsInAFolderThatIsMovedAwayMeanwhile) {
    for (const auto& move : moves()) losesNothingTo(move);
}

TEST(Removal, StopsThereAlsoWhereTheSystemTellsNoPaths) {
    expectInSeparateProcess([] {
        const bool isHidden =
            enterOwnMountSpace() && ::mount("none", "/proc", "tmpfs", 0, nullptr) == 0;
        if (!isHidden) skipSeparateProcess();
        for (const auto& move : moves()) losesNothingTo(move);
        const SampleMachine machine;
        makeFlat(machine, "~/.cache/tree", 20, 50);
        EXPECT_EQ(removeAt(machine, "~/.cache/tree"), Removal::complete);
    });
}

TEST(Removal, ReachesAnyDepthWithFewDescriptors) {
    expectInSeparateProcess([] {
        const SampleMachine machine;
        makeChain(machine.path("~/Library/chain"), 2500);
        limitDescriptors(16);
        EXPECT_EQ(removeAt(machine, "~/Library/chain"), Removal::complete);
        EXPECT_FALSE(machine.has("~/Library/chain"));
    });
}

TEST(Removal, GoesOnAfterAFailureAndChangesNoPermissions) {
    expectInSeparateProcess([] {
        becomeOrdinaryUser();
        const SampleMachine machine;
        makeFlat(machine, "~/Library/tree", 20, 20);
        makeChain(machine.path("~/Library/tree/chain"), 100);
        for (const auto* folder : {"locked", "unlisted", "empty-unlisted"})
            machine.folder("~/Library/tree/7/" + std::string(folder));
        machine.file("~/Library/tree/7/locked/file");
        machine.file("~/Library/tree/7/unlisted/file");
        fs::permissions(machine.path("~/Library/tree/7/locked"), fs::perms(0500));
        fs::permissions(machine.path("~/Library/tree/7/unlisted"), fs::perms(0300));
        fs::permissions(machine.path("~/Library/tree/7/empty-unlisted"), fs::perms(0));
        EXPECT_EQ(removeAt(machine, "~/Library/tree"), Removal::incomplete);
        std::vector<std::string> left;
        for (const auto& entry : fs::recursive_directory_iterator(
                 machine.path("~/Library/tree"), fs::directory_options::skip_permission_denied))
            left.push_back(entry.path().filename());
        EXPECT_EQ(left.size(), 4U);
        EXPECT_TRUE(machine.has("~/Library/tree/7/locked/file"));
        EXPECT_TRUE(machine.has("~/Library/tree/7/unlisted/file"));
        EXPECT_EQ(fs::status(machine.path("~/Library/tree/7/locked")).permissions(),
                  fs::perms(0500));
    });
}

TEST(Removal, NeedsNoThreadsButItsOwn) {
    expectInSeparateProcess([] {
        becomeOrdinaryUser();
        const SampleMachine machine;
        makeFlat(machine, "~/Library/tree", 20, 100);
        const rlimit none{.rlim_cur = 0, .rlim_max = 0};
        ASSERT_EQ(::setrlimit(RLIMIT_NPROC, &none), 0);
        EXPECT_EQ(allocatedSize(machine.path("~/Library/tree")), 0);
        EXPECT_EQ(removeAt(machine, "~/Library/tree"), Removal::complete);
        EXPECT_FALSE(machine.has("~/Library/tree"));
    });
}

TEST(Removal, SharesATreeWithAnotherRemovalAndWithNewFiles) {
    const SampleMachine machine;
    makeFlat(machine, "~/Library/tree", 40, 100);
    makeFlat(machine, "~/Library/tree/flat", 1, 5000);
    const auto item = approved(machine, "~/Library/tree");
    auto results = std::array{Removal::incomplete, Removal::incomplete};
    std::thread other([&] { results[1] = removeItem(item); });
    results[0] = removeItem(item);
    other.join();
    EXPECT_EQ(results[0], Removal::complete);
    EXPECT_EQ(results[1], Removal::complete);
    EXPECT_FALSE(machine.has("~/Library/tree"));

    // A folder that gets a file after it was read is read once more.
    machine.file("~/.cache/a/file");
    const auto folder = approved(machine, "~/.cache");
    const auto made = machine.path("~/.cache/a/new");
    machine.file("~/.cache/b");
    std::atomic<bool> isOver = false;
    std::thread adding([&] {
        while (!isOver) ::close(::open(made.c_str(), O_CREAT | O_WRONLY, 0600));
    });
    for (int round = 0; round < 200; ++round) {
        machine.folder("~/.cache/a");
        emptyAt(machine, "~/.cache");
    }
    isOver = true;
    adding.join();
    EXPECT_EQ(emptyAt(machine, "~/.cache"), Removal::complete);
}

}  // namespace
}  // namespace tidewell
