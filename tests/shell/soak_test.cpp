#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "async/main_loop.h"
#include "platform/dates.h"
#include "shell/screens/smart_scan_content.h"
#include "support/footprint.h"
#include "support/sample_machine.h"
#include "support/simulator_tools.h"

namespace tidewell::test {
namespace {

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
    EXPECT_EQ(threadsInTheEnd(1), 1);
    const auto heap = heapInUse();
    const auto descriptors = openDescriptors();

    for (int number = warmUp; number < scans; ++number) {
        scan();
        ASSERT_EQ(foundBytes(*controller), found) << "scan " << number;
    }
    EXPECT_EQ(threadsInTheEnd(1), 1);
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_FALSE(hasChildren());
    EXPECT_LE(heapInUse(), heap + allocatorsOwn);
}

}  // namespace
}  // namespace tidewell::test
