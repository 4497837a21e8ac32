#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <memory>
#include <thread>
#include <utility>
#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

#include "async/main_loop.h"
#include "platform/dates.h"
#include "shell/screens/smart_scan_content.h"
#include "support/sample_machine.h"
#include "support/simulator_tools.h"

namespace tidewell::test {
namespace {

#ifdef __SANITIZE_ADDRESS__
/// Bytes that the program has asked for and not given back.
std::size_t heapInUse() {
    return __sanitizer_get_current_allocated_bytes();
}
constexpr std::size_t allocatorsOwn = 0;
#else
/// The same, with what the allocator keeps at hand for each thread.
std::size_t heapInUse() {
    const auto heap = ::mallinfo2();
    return heap.uordblks + heap.hblkhd;
}
constexpr std::size_t allocatorsOwn = 32 * kilobyte;
#endif

std::ptrdiff_t entriesOf(const char* folder) {
    return std::distance(std::filesystem::directory_iterator(folder), {});
}

/// A thread that has handed over its value may still be on its way out.
std::ptrdiff_t threadsInTheEnd() {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    std::ptrdiff_t threads = 0;
    while ((threads = entriesOf("/proc/self/task")) > 1 &&
           std::chrono::steady_clock::now() < deadline)
        std::this_thread::yield();
    return threads;
}

bool hasChildren() {
    return ::waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD;
}

/// Something for each of the four tools, in folders that are walked and by tools that are run.
void furnish(const SampleMachine& machine) {
    for (int number = 0; number < 20; ++number) {
        const auto name = std::to_string(number);
        machine.file("~/.npm/_cacache/" + name, 8192);
        machine.file("~/Code/app" + name + "/node_modules/x", 4096);
        machine.text("~/Code/app" + name + "/package.json", "{}");
    }
    machine.file("~/Movies/holiday.mov", 90 * megabyte);
    for (const auto* name : {"Notes", "Paint"})
        machine.application("/Applications/" + std::string(name) + ".app",
                            {{"CFBundleName", name}, {"CFBundleIdentifier", name}});
    const SimulatorTools tools(machine);
    tools.runtime("A", R"({"sizeBytes":7000})");
    tools.snapshots("com.apple.TimeMachine.2026-01-02-030405.local\n");
}

/// A run of the program as it is, with threads and tools, whose screen is drawn anew at each
/// change.
class SoakTest : public testing::Test {
 protected:
    SoakTest() { furnish(machine); }

    void scan() {
        controller->start();
        loop.run();
    }
    void draw() {
        const bool wasRunning =
            std::exchange(content, smartScanContent(*controller, now())).isRunning;
        if (wasRunning && !content.isRunning) loop.quit();
    }

    const SampleMachine machine;
    RunLoop loop;
    const std::shared_ptr<SmartScanController> controller =
        std::make_shared<SmartScanController>(std::make_shared<CleanupViewModel>(machine.host()),
                                              std::make_shared<AppsViewModel>(machine.host()),
                                              std::make_shared<DeepScanViewModel>(machine.host()),
                                              std::make_shared<AdvisorViewModel>(machine.host()));
    SmartScanContent content;
    const Subscription drawing = onChanged(controller->willChange, [this] { draw(); });
};

TEST_F(SoakTest, AHundredScansInOneProcessLeaveNothingBehind) {
    constexpr int scans = 100;
    constexpr int warmUp = 10;

    for (int number = 0; number < warmUp; ++number) scan();
    const auto found = foundBytes(*controller);
    EXPECT_GT(found, 90 * megabyte);
    EXPECT_EQ(threadsInTheEnd(), 1);
    const auto heap = heapInUse();
    const auto descriptors = entriesOf("/proc/self/fd");

    for (int number = warmUp; number < scans; ++number) {
        scan();
        ASSERT_EQ(foundBytes(*controller), found) << "scan " << number;
    }
    EXPECT_EQ(threadsInTheEnd(), 1);
    EXPECT_EQ(entriesOf("/proc/self/fd"), descriptors);
    EXPECT_FALSE(hasChildren());
    EXPECT_LE(heapInUse(), heap + allocatorsOwn);
}

}  // namespace
}  // namespace tidewell::test
