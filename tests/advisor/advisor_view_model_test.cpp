#include "advisor/advisor_view_model.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "support/sample_machine.h"
#include "support/simulator_tools.h"
#include "support/test_loop.h"

namespace tidewell::test {
namespace {

using Phase = AdvisorViewModel::Phase;

constexpr auto threeDeadSims = R"({"devices":{"gone":[{"isAvailable":false},{"isAvailable":false},
                                                       {"isAvailable":false}]}})";
constexpr auto oneDeadSim = R"({"devices":{"gone":[{"name":"iPhone 6","isAvailable":false}]}})";
constexpr auto twoSnapshots = "com.apple.TimeMachine.1\ncom.apple.TimeMachine.2\n";

class AdvisorViewModelTest : public testing::Test {
 protected:
    void SetUp() override {
        tools.runtime("A", R"({"name":"iOS 16.4","sizeBytes":5000})");
        tools.runtime("B", R"({"name":"iOS 17.5","sizeBytes":7000})");
        tools.devices(threeDeadSims);
        tools.snapshots(twoSnapshots);
    }

    /// Starts an operation and stops where its background call has begun.
    template <class... Parameters, class... Arguments>
    void begin(Task<> (AdvisorViewModel::*operation)(Parameters...), Arguments... arguments) {
        spawn(model, operation, arguments...);
        loop.runTurns();
    }
    template <class... Parameters, class... Arguments>
    void perform(Task<> (AdvisorViewModel::*operation)(Parameters...), Arguments... arguments) {
        begin(operation, arguments...);
        loop.runAll();
    }

    const SampleMachine machine;
    const SimulatorTools tools{machine};
    TestLoop loop;
    const std::shared_ptr<AdvisorViewModel> model =
        std::make_shared<AdvisorViewModel>(machine.host());
};

TEST_F(AdvisorViewModelTest, AScanGathersEverythingAndASecondOneMeanwhileDoesNothing) {
    EXPECT_EQ(model->phase(), Phase::idle);
    EXPECT_FALSE(model->hasFindings());
    begin(&AdvisorViewModel::scan);
    begin(&AdvisorViewModel::scan);
    EXPECT_EQ(loop.inBackground(), 1);
    EXPECT_EQ(model->phase(), Phase::scanning);

    loop.runAll();
    EXPECT_EQ(model->phase(), Phase::list);
    EXPECT_EQ(model->findings().runtimes.size(), 2);
    EXPECT_EQ(model->findings().unavailableSims, 3);
    EXPECT_EQ(model->findings().snapshotCount, 2);
    EXPECT_EQ(model->reclaimableBytes(), 12000);
    EXPECT_TRUE(model->hasFindings());

    model->lastMessage = "the outcome of an action";
    begin(&AdvisorViewModel::scan);
    EXPECT_FALSE(model->lastMessage());
    EXPECT_EQ(model->findings().runtimes.size(), 2) << "until the new ones are there";
}

TEST_F(AdvisorViewModelTest,
       EachActionNamesItselfWhileItRunsAndTakesWhatItRemovedOutOfTheFindings) {
    perform(&AdvisorViewModel::scan);

    begin(&AdvisorViewModel::deleteRuntime, model->findings().runtimes.front());
    EXPECT_EQ(model->busyAction(), "B");
    loop.runAll();
    EXPECT_FALSE(model->busyAction());
    EXPECT_EQ(model->lastMessage(),
              "Deleted iOS 17.5. If the space doesn't show up, a restart releases it.");
    ASSERT_EQ(model->findings().runtimes.size(), 1);
    EXPECT_EQ(model->findings().runtimes.front().id, "A");
    EXPECT_EQ(model->reclaimableBytes(), 5000);
    EXPECT_FALSE(machine.has("/state/runtimes/B"));

    begin(&AdvisorViewModel::removeUnavailableSims);
    EXPECT_EQ(model->busyAction(), "unavailable-sims");
    EXPECT_TRUE(model->lastMessage()) << "starting an action clears no message";
    loop.runAll();
    EXPECT_FALSE(model->busyAction());
    EXPECT_EQ(model->lastMessage(), "Removed 3 unavailable simulators.");
    EXPECT_EQ(model->findings().unavailableSims, 0);

    begin(&AdvisorViewModel::thinSnapshots);
    EXPECT_EQ(model->busyAction(), "snapshots");
    loop.runAll();
    EXPECT_FALSE(model->busyAction());
    EXPECT_EQ(model->lastMessage(),
              "macOS is purging snapshots now. Space shows up over the next few minutes.");
    EXPECT_EQ(model->findings().snapshotCount, 0);
    EXPECT_EQ(model->phase(), Phase::list);

    perform(&AdvisorViewModel::deleteRuntime, model->findings().runtimes.front());
    EXPECT_FALSE(model->hasFindings());
    EXPECT_EQ(model->lastMessage(),
              "Deleted iOS 16.4. If the space doesn't show up, a restart releases it.");
}

TEST_F(AdvisorViewModelTest, AFailedActionSaysSoAndLeavesTheFindingsAlone) {
    perform(&AdvisorViewModel::scan);
    for (const auto* tool : {"/usr/bin/xcrun", "/usr/bin/tmutil"})
        machine.tool(tool, "echo some words of the tool; exit 1\n");
    perform(&AdvisorViewModel::deleteRuntime, model->findings().runtimes.front());
    EXPECT_EQ(model->lastMessage(),
              "Couldn't delete iOS 17.5. Try Xcode ▸ Settings ▸ Components instead.");
    perform(&AdvisorViewModel::removeUnavailableSims);
    EXPECT_EQ(model->lastMessage(), "Couldn't remove unavailable simulators.");
    perform(&AdvisorViewModel::thinSnapshots);
    EXPECT_EQ(model->lastMessage(), "Couldn't thin local snapshots.");
    EXPECT_FALSE(model->busyAction());
    EXPECT_EQ(model->findings().runtimes.size(), 2);
    EXPECT_EQ(model->findings().unavailableSims, 3);
    EXPECT_EQ(model->findings().snapshotCount, 2);
}

TEST_F(AdvisorViewModelTest, OfTwoActionsAtOnceTheFirstToEndClearsTheBusyMark) {
    perform(&AdvisorViewModel::scan);
    begin(&AdvisorViewModel::deleteRuntime, model->findings().runtimes.front());
    begin(&AdvisorViewModel::thinSnapshots);
    EXPECT_EQ(loop.inBackground(), 2);
    EXPECT_EQ(model->busyAction(), "snapshots");

    loop.finish(1);
    EXPECT_FALSE(model->busyAction());
    EXPECT_EQ(model->findings().snapshotCount, 0);
    EXPECT_EQ(model->findings().runtimes.size(), 2);
    loop.finish();
    EXPECT_EQ(model->findings().runtimes.size(), 1);
    EXPECT_TRUE(model->lastMessage()->starts_with("Deleted iOS 17.5."));
}

TEST_F(AdvisorViewModelTest, ARemovalReportsTheCountAsItStandsWhenItEnds) {
    perform(&AdvisorViewModel::scan);
    begin(&AdvisorViewModel::removeUnavailableSims);
    tools.devices(oneDeadSim);
    begin(&AdvisorViewModel::scan);
    loop.finish(1);
    EXPECT_EQ(model->busyAction(), "unavailable-sims") << "a scan leaves the action its mark";
    loop.finish();
    EXPECT_EQ(model->lastMessage(), "Removed 1 unavailable simulator.");
}

TEST_F(AdvisorViewModelTest, EveryKindOfFindingCountsAndOnlyRuntimesAreReclaimable) {
    for (const auto kind :
         {&Findings::unavailableSims, &Findings::snapshotCount, &Findings::dockerBytes}) {
        model->findings = Findings{};
        model->findings.mutate().*kind = 1;
        EXPECT_TRUE(model->hasFindings());
        EXPECT_EQ(model->reclaimableBytes(), 0);
    }
    SimRuntime hostile;
    hostile.sizeBytes = std::numeric_limits<ByteCount>::max();
    model->findings.mutate().runtimes = {hostile, hostile};
    EXPECT_EQ(model->reclaimableBytes(), hostile.sizeBytes);
}

}  // namespace
}  // namespace tidewell::test
