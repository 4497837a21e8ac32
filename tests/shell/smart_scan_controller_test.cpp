#include "shell/smart_scan_controller.h"

#include <vector>

#include "shell/smart_scan_test.h"
#include "support/allocation_failure.h"
#include "support/simulator_tools.h"

namespace tidewell::test {
namespace {

class SmartScanControllerTest : public SmartScanTest {
 protected:
    /// Ends background calls, oldest first, until the run has come to the phase.
    void runUntil(Phase phase) {
        loop.runTurns();
        while (controller->phase() != phase && loop.inBackground() > 0) loop.finish();
        ASSERT_EQ(controller->phase(), phase);
    }

    /// The phases from here on, each once, until nothing is under way.
    std::vector<Phase> phasesToTheEnd() {
        std::vector<Phase> phases = {controller->phase()};
        const auto note = [&] {
            if (controller->phase() != phases.back()) phases.push_back(controller->phase());
        };
        for (loop.runTurns(), note(); loop.inBackground() > 0; note()) loop.finish();
        return phases;
    }

    /// Which of the four view models hold a result.
    std::vector<bool> filled() const {
        return {controller->cleanFinished(), apps->phase() == AppsViewModel::Phase::list,
                deepScan->phase() == DeepScanViewModel::Phase::list,
                advisor->phase() == AdvisorViewModel::Phase::list};
    }
};

TEST_F(SmartScanControllerTest, OneCallFillsAllFourToolsOneAfterTheOther) {
    machine.file("~/.gradle/caches/modules.bin", 2 * megabyte);
    machine.application("/Applications/Notes.app", {{"CFBundleIdentifier", "com.example.notes"}});
    machine.file("~/Movies/holiday.mov", 90 * megabyte);
    const SimulatorTools tools(machine);
    tools.runtime("A", R"({"sizeBytes":7000})");

    controller->start();
    EXPECT_EQ(controller->phase(), Phase::idle) << "the run begins in a later turn";
    const std::vector expected = {Phase::idle,     Phase::clean,   Phase::apps,
                                  Phase::deepScan, Phase::advisor, Phase::done};
    EXPECT_EQ(phasesToTheEnd(), expected);
    EXPECT_FALSE(controller->stopped());
    EXPECT_GE(cleanup->totalBytes(), 2 * megabyte);
    EXPECT_EQ(apps->apps().size(), 1);
    EXPECT_GE(deepScan->totalBytes(), 90 * megabyte);
    EXPECT_EQ(advisor->reclaimableBytes(), 7000);
}

TEST_F(SmartScanControllerTest, AStopEndsTheSequenceAtOnceAndLetsTheScanInHandFinish) {
    const struct {
        Phase phase;
        std::vector<bool> filled;
    } rows[] = {
        {Phase::clean, {true, false, false, false}},
        {Phase::apps, {true, true, false, false}},
        {Phase::deepScan, {true, true, true, false}},
        {Phase::advisor, {true, true, true, true}},
    };
    for (const auto& [phase, expected] : rows) {
        cleanup->phase = CleanupViewModel::Phase::idle;
        apps->phase = AppsViewModel::Phase::idle;
        deepScan->phase = DeepScanViewModel::Phase::idle;
        advisor->phase = AdvisorViewModel::Phase::idle;
        controller->start();
        runUntil(phase);
        controller->stop();
        EXPECT_EQ(controller->phase(), Phase::done);
        EXPECT_TRUE(controller->stopped());
        controller->reset();
        EXPECT_EQ(phasesToTheEnd(), std::vector{Phase::idle});
        EXPECT_EQ(filled(), expected);
        EXPECT_TRUE(controller->stopped());
    }
}

TEST_F(SmartScanControllerTest, AStopOutsideARunChangesNothing) {
    controller->stop();
    EXPECT_EQ(controller->phase(), Phase::idle);
    controller->start();
    controller->stop();  // the run has not had its first turn
    loop.runAll();
    EXPECT_EQ(controller->phase(), Phase::done);
    controller->stop();
    EXPECT_FALSE(controller->stopped());
}

TEST_F(SmartScanControllerTest, OfTwoStartsInARowTheNewerGoesAheadAndTheOlderEnds) {
    controller->start();
    controller->start();
    loop.runTurns();
    EXPECT_EQ(controller->phase(), Phase::apps);
    EXPECT_EQ(cleanup->phase(), CleanupViewModel::Phase::scanning);
    EXPECT_EQ(loop.inBackground(), 2) << "the search for artifacts, and the search for apps";

    // The clean scan ends first: the older run wakes, and must not touch the newer one's phase.
    loop.finish(0);
    while (!controller->cleanFinished()) loop.finish(1);
    const std::vector rest = {Phase::apps, Phase::deepScan, Phase::advisor, Phase::done};
    EXPECT_EQ(phasesToTheEnd(), rest);
    EXPECT_FALSE(controller->stopped());
}

TEST_F(SmartScanControllerTest, AStartIsRefusedDuringARunAndAfterAStopUntilTheScanInHandHasEnded) {
    controller->start();
    runUntil(Phase::apps);
    apps->phase = AppsViewModel::Phase::idle;  // whatever the tool in hand says
    controller->start();
    loop.runTurns();
    EXPECT_EQ(controller->phase(), Phase::apps);
    EXPECT_EQ(loop.inBackground(), 1);
    apps->phase = AppsViewModel::Phase::scanning;
    controller->stop();
    controller->start();
    EXPECT_TRUE(controller->stopped());
    EXPECT_EQ(phasesToTheEnd(), std::vector{Phase::done});

    controller->start();
    EXPECT_FALSE(controller->stopped());
    const std::vector expected = {Phase::done,     Phase::clean,   Phase::apps,
                                  Phase::deepScan, Phase::advisor, Phase::done};
    EXPECT_EQ(phasesToTheEnd(), expected);
}

TEST_F(SmartScanControllerTest, ARunWhoseToolHasNoMemoryEndsAndCanBeStartedAgain) {
    for (const auto failing : {Phase::clean, Phase::apps, Phase::deepScan, Phase::advisor}) {
        controller->start();
        runUntil(failing);
        test::failNextAllocation();
        EXPECT_THROW(loop.finish(), std::bad_alloc);
        EXPECT_EQ(controller->phase(), Phase::done);
        EXPECT_TRUE(controller->stopped());
    }
    controller->start();
    EXPECT_EQ(phasesToTheEnd().back(), Phase::done);
    EXPECT_FALSE(controller->stopped());
}

TEST_F(SmartScanControllerTest, AToolThatIsBusyByItselfKeepsARunFromStarting) {
    const auto isRefused = [&] {
        controller->start();
        loop.runTurns();
        return controller->phase() == Phase::idle && loop.inBackground() == 0;
    };
    for (const auto busy : {CleanupViewModel::Phase::scanning, CleanupViewModel::Phase::cleaning}) {
        cleanup->phase = busy;
        EXPECT_TRUE(isRefused());
    }
    cleanup->phase = CleanupViewModel::Phase::done;
    apps->phase = AppsViewModel::Phase::scanning;
    EXPECT_TRUE(isRefused());
    apps->phase = AppsViewModel::Phase::list;
    deepScan->phase = DeepScanViewModel::Phase::scanning;
    EXPECT_TRUE(isRefused());
    deepScan->phase = DeepScanViewModel::Phase::list;
    advisor->phase = AdvisorViewModel::Phase::scanning;
    EXPECT_TRUE(isRefused());
    advisor->phase = AdvisorViewModel::Phase::list;
    EXPECT_FALSE(isRefused());
}

TEST_F(SmartScanControllerTest, EachChangeInAnyToolIsPassedOnForAsLongAsTheControllerLives) {
    int changes = 0;
    const auto subscription = controller->willChange.subscribe([&] { ++changes; });
    cleanup->scanProgress = 0.5;
    EXPECT_EQ(changes, 1);
    apps->scanProgress = 0.5;
    EXPECT_EQ(changes, 2);
    deepScan->scanProgress = 0.5;
    EXPECT_EQ(changes, 3);
    advisor->lastMessage = std::nullopt;
    EXPECT_EQ(changes, 4);
    controller->stopped = false;
    EXPECT_EQ(changes, 5);

    const std::weak_ptr<SmartScanController> weak = controller;
    controller.reset();
    EXPECT_TRUE(weak.expired());
    cleanup->scanProgress = 1.0;
    EXPECT_EQ(changes, 5);
}

TEST_F(SmartScanControllerTest, ARunKeepsItsControllerUntilItEnds) {
    const std::weak_ptr<SmartScanController> weak = controller;
    controller->start();
    controller.reset();
    EXPECT_FALSE(weak.expired());
    loop.runAll();
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(advisor->phase(), AdvisorViewModel::Phase::list);
}

TEST_F(SmartScanControllerTest, TheDetailFollowsThePhaseAndTheTargetInHand) {
    EXPECT_EQ(controller->detail(), "");
    controller->phase = Phase::apps;
    EXPECT_EQ(controller->detail(), "reading /Applications…");
    controller->phase = Phase::clean;
    EXPECT_EQ(controller->detail(), "measuring caches…");
    cleanup->currentTarget = "Xcode DerivedData";
    EXPECT_EQ(controller->detail(), "Xcode DerivedData");
}

}  // namespace
/// What comes in between shows whether the deep scan has looked for itself.
TEST(SmartScanMeasures, AreTakenOverWithinOneScanOnLinuxMachinesAlone) {
    using Phase = SmartScanController::Phase;
    for (const auto system : {System::macOS, System::linux}) {
        const SampleMachine machine;
        auto host = machine.host();
        host.system = system;
        TestLoop loop;
        const auto deepScan = std::make_shared<DeepScanViewModel>(host);
        const auto controller = std::make_shared<SmartScanController>(
            std::make_shared<CleanupViewModel>(host), std::make_shared<AppsViewModel>(host),
            deepScan, std::make_shared<AdvisorViewModel>(host));
        const std::string cache =
            system == System::linux ? "~/.cache/example/below/" : "~/Library/Caches/example/below/";
        machine.file(cache + "first", 90 * test::megabyte);
        controller->start();
        loop.runTurns();
        while (controller->phase() != Phase::apps) loop.finish();
        machine.file(cache + "second", 10 * test::megabyte);
        loop.runAll();
        const auto taken = (system == System::linux ? 90 : 100) * test::megabyte;
        EXPECT_EQ(deepScan->totalBytes(), taken);
        controller->start();
        loop.runAll();
        EXPECT_EQ(deepScan->totalBytes(), 100 * test::megabyte) << "nothing outlives its scan";
    }
}

}  // namespace tidewell::test
