#include "performance/performance_view_model.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

#include "support/running_program.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell {
namespace {

using namespace std::chrono_literals;
using test::OnRequestToEnd;
using test::RunningProgram;
using test::SampleMachine;
using test::TestLoop;
using Phase = PerformanceViewModel::Phase;

class PerformanceViewModelTest : public testing::Test {
 protected:
    std::string executable(std::string_view application) const {
        return test::executableOf(machine, application);
    }
    void scan() {
        spawn(model, &PerformanceViewModel::scan);
        loop.runAll();
    }
    RunningApp listed(const RunningProgram& program) const {
        for (const auto& app : model->apps())
            if (app.id == program.processId()) return app;
        throw std::runtime_error("not listed");
    }

    const SampleMachine machine;
    TestLoop loop;
    const std::shared_ptr<PerformanceViewModel> model =
        std::make_shared<PerformanceViewModel>(machine.host());
};

TEST_F(PerformanceViewModelTest, ScansOnceAtATimeAndPublishesAllProbes) {
    const RunningProgram paint(executable("/Applications/Paint.app"));
    machine.text("~/Library/LaunchAgents/x.plist", "<plist version=\"1.0\"><dict/></plist>");
    EXPECT_EQ(model->memoryFraction(), 0.0);

    spawn(model, &PerformanceViewModel::scan);
    spawn(model, &PerformanceViewModel::scan);
    loop.runTurns();
    EXPECT_EQ(model->phase(), Phase::scanning);
    EXPECT_EQ(loop.inBackground(), 1U);
    loop.runAll();
    EXPECT_EQ(model->phase(), Phase::list);
    ASSERT_EQ(model->apps().size(), 1U);
    EXPECT_EQ(model->apps()[0].name, "Paint");
    EXPECT_EQ(model->totalAppMemory(), model->apps()[0].memoryBytes);
    ASSERT_EQ(model->loginItems().size(), 1U);
    EXPECT_GT(model->memoryFraction(), 0.0);

    spawn(model, &PerformanceViewModel::scan);
    loop.runTurns();
    EXPECT_EQ(model->phase(), Phase::scanning);
    EXPECT_EQ(model->apps().size(), 1U);
}

TEST_F(PerformanceViewModelTest, AsksAnApplicationToQuitAndLooksAgainALittleLater) {
    const RunningProgram paint(executable("/Applications/Paint.app"));
    machine.text("~/Library/LaunchAgents/x.plist", "<plist version=\"1.0\"><dict/></plist>");
    scan();
    const auto loginItem = model->loginItems().at(0).id;

    model->quit(listed(paint));
    paint.waitForEnd();
    EXPECT_EQ(model->busyPID(), paint.processId());
    EXPECT_EQ(model->lastMessage(), "Asked Paint to quit. Its memory frees as it closes.");
    EXPECT_EQ(model->apps().size(), 1U);

    loop.runTurns();
    loop.advance(899ms);
    EXPECT_EQ(loop.inBackground(), 0U);
    loop.advance(1ms);
    EXPECT_EQ(model->busyPID(), paint.processId());
    loop.runAll();
    EXPECT_TRUE(model->apps().empty());
    EXPECT_EQ(model->busyPID(), std::nullopt);
    EXPECT_TRUE(model->lastMessage());
    EXPECT_EQ(model->phase(), Phase::list);
    EXPECT_EQ(model->loginItems().at(0).id, loginItem);

    scan();
    EXPECT_EQ(model->lastMessage(), std::nullopt);
}

TEST_F(PerformanceViewModelTest, LeavesAnApplicationAloneThatDoesNotQuit) {
    const RunningProgram stubborn(executable("/Applications/Stubborn.app"), OnRequestToEnd::ignore);
    scan();
    model->quit(listed(stubborn));
    loop.runTurns();
    loop.advance(900ms);
    loop.runAll();
    EXPECT_EQ(listed(stubborn).name, "Stubborn");

    auto refused = listed(stubborn);
    refused.process.id = -1;
    model->quit(refused);
    EXPECT_EQ(model->lastMessage(), "Stubborn wouldn't quit. It may have unsaved work open.");
    EXPECT_EQ(model->busyPID(), stubborn.processId());
}

TEST_F(PerformanceViewModelTest, DoesNothingForAnApplicationThatHasEnded) {
    RunningProgram paint(executable("/Applications/Paint.app"));
    scan();
    const auto app = listed(paint);
    paint.kill();
    bool changed = false;
    const auto subscription = model->willChange.subscribe([&] { changed = true; });
    model->quit(app);
    loop.advance(2s);
    loop.runAll();
    EXPECT_FALSE(changed);
}

TEST_F(PerformanceViewModelTest, ShowsTheLaterOfTwoRequestsUntilTheFirstIsThrough) {
    const RunningProgram first(executable("/Applications/First.app"));
    const RunningProgram second(executable("/Applications/Second.app"));
    scan();
    model->quit(listed(first));
    first.waitForEnd();
    loop.runTurns();
    loop.advance(500ms);
    model->quit(listed(second));
    second.waitForEnd();
    loop.runTurns();
    EXPECT_EQ(model->busyPID(), second.processId());
    loop.advance(400ms);
    loop.runAll();
    EXPECT_EQ(model->busyPID(), std::nullopt);
    loop.advance(500ms);
    EXPECT_EQ(loop.inBackground(), 1U);
    loop.runAll();
    EXPECT_TRUE(model->apps().empty());
}

TEST_F(PerformanceViewModelTest, KeepsTheFractionAndTheSumWithinBounds) {
    constexpr auto largest = std::numeric_limits<ByteCount>::max();
    const struct {
        ByteCount used;
        ByteCount total;
        double fraction;
    } rows[] = {{5, 0, 0.0}, {5, -1, 0.0}, {5, 4, 1.0}, {-5, 4, 0.0}, {1, 4, 0.25}};
    for (const auto& row : rows) {
        model->memoryUsed = row.used;
        model->memoryTotal = row.total;
        EXPECT_EQ(model->memoryFraction(), row.fraction) << row.used << " of " << row.total;
    }
    RunningApp huge;
    huge.memoryBytes = largest;
    model->apps = std::vector{huge, huge};
    EXPECT_EQ(model->totalAppMemory(), largest);
}

}  // namespace
}  // namespace tidewell
