#include "platform/silent_mounts.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <chrono>

#include "cleanup/disk_scanner.h"
#include "platform/disk_usage.h"
#include "platform/files.h"
#include "platform/folder_walk.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell::test {
namespace {

constexpr ByteCount block = 4096;

/// A file system in a program that never answers: this one. Whoever asks anything of it waits until
/// it is unmounted by force.
class SilentFileSystem {
 public:
    explicit SilentFileSystem(std::string place)
        : place_(std::move(place)), device_(::open("/dev/fuse", O_RDWR | O_CLOEXEC)) {
        const auto options =
            "fd=" + std::to_string(device_) + ",rootmode=40000,user_id=0,group_id=0";
        isMounted_ = device_ >= 0 && ::mount("silent", place_.c_str(), "fuse", MS_NOSUID | MS_NODEV,
                                             options.c_str()) == 0;
    }
    ~SilentFileSystem() {
        if (isMounted_) ::umount2(place_.c_str(), MNT_FORCE | MNT_DETACH);
        ::close(device_);
    }

    bool isMounted() const { return isMounted_; }

 private:
    std::string place_;
    int device_;
    bool isMounted_ = false;
};

bool mayMountSilence() {
    return ::geteuid() == 0 && ::access("/dev/fuse", R_OK | W_OK) == 0;
}

std::vector<std::string> walkedNames(const std::string& folder) {
    std::vector<std::string> names;
    walkFolder(folder, HiddenEntries::visit, [&](const WalkEntry& entry) {
        names.emplace_back(entry.name);
        return Descent::enter;
    });
    return names;
}

TEST(SilentMounts, ArePassedOverByEverythingThatLooksOrRemoves) {
    if (!mayMountSilence()) GTEST_SKIP() << "may not mount";
    expectInSeparateProcess([] {
        ::alarm(60);  // whatever asks the mount waits for ever
        if (!enterOwnMountSpace()) return;
        const SampleMachine machine;
        const DiskScanner scanner(machine.host());
        machine.file("~/.npm/below/file", 2 * block);
        machine.folder("~/.npm/far away");
        machine.link("~/.m2", machine.path("~/.npm/far away/m2"));
        EXPECT_TRUE(findSilentMounts().empty());
        {
            const SilentFileSystem silence(machine.path("~/.npm/far away"));
            ASSERT_TRUE(silence.isMounted());
            const auto far = machine.path("~/.npm/far away");
            EXPECT_EQ(findSilentMounts(), std::vector{far});
            const auto start = std::chrono::steady_clock::now();
            EXPECT_EQ(findSilentMounts(), std::vector{far});
            EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1))
                << "it was asked already";

            const auto usage = diskUsage(machine.path("~/.npm"));
            EXPECT_EQ(usage.bytes, 2 * block);
            EXPECT_FALSE(usage.unread.isEmpty());
            EXPECT_EQ(walkedNames(machine.path("~/.npm")),
                      (std::vector<std::string>{"below", "file", "far away"}));
            for (const auto* path : {"~/.npm/far away", "~/.npm/./far away/x", "~/.m2",
                                     "~/.m2/repository", "~/.npm/below/../far away/x"}) {
                EXPECT_EQ(fileKind(machine.path(path)), FileKind::untold) << path;
                EXPECT_FALSE(resolvedPath(machine.path(path))) << path;
                EXPECT_FALSE(folderNames(machine.path(path))) << path;
                EXPECT_EQ(diskUsage(machine.path(path)).bytes, 0) << path;
            }
            EXPECT_TRUE(realLocation(machine.path("~/.m2")));
            EXPECT_FALSE(realLocation(machine.path("~/.m2/repository")));

            const auto item = scanner.measure(
                {.id = "npm", .title = "npm", .detail = "", .paths = {machine.path("~/.npm")}});
            ASSERT_TRUE(item);
            const auto result = scanner.clean(*item);
            EXPECT_EQ(result.freedBytes, 2 * block);
            EXPECT_EQ(result.failedTitle, "npm");
            EXPECT_FALSE(machine.has("~/.npm/below"));
        }
        EXPECT_TRUE(findSilentMounts().empty()) << "it is gone";
        EXPECT_EQ(fileKind(machine.path("~/.npm/far away")), FileKind::folder);
    });
}

}  // namespace
}  // namespace tidewell::test
