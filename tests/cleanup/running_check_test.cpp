#include "cleanup/running_check.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "cleanup/cleanup_view_model.h"
#include "cleanup/screens/review_content.h"
#include "support/running_program.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell {

namespace {

using test::RunningProgram;
using test::SampleMachine;
using test::TestLoop;

struct RunningCheck : ::testing::Test {
    RunningCheck() {
        machine.file("~/.config/Slack/Cache/one", 8192);
        machine.file("~/.cache/pip/one", 4096);
        machine.file("~/.var/app/org.example.Maps/cache/tiles/one", 4096);
    }
    void scan() {
        spawn(model, &CleanupViewModel::startScan);
        loop.runAll();
    }
    void clean() {
        spawn(model, &CleanupViewModel::cleanSelected);
        loop.runAll();
    }
    const CleanupItem& item(std::string_view id) const { return *findItem(model->items(), id); }

    SampleMachine machine{System::linux};
    std::string slack = machine.path("/usr/lib/slack/slack");
    TestLoop loop;
    std::shared_ptr<CleanupViewModel> model = std::make_shared<CleanupViewModel>(machine.host());
};

}  // namespace

TEST_F(RunningCheck, LeavesWhatARunningProgramWorksWithToAWishOfItsOwn) {
    const RunningProgram running(slack);
    scan();
    EXPECT_EQ(item("slack-cache").runningPrograms, std::vector<std::string>{"Slack"});
    EXPECT_FALSE(item("slack-cache").isSelected);
    EXPECT_TRUE(item("pip-cache").isSelected);
    const auto chip = itemChip(item("slack-cache"));
    EXPECT_EQ(chip.badge, "Running");
    EXPECT_TRUE(chip.detail.starts_with("Quit Slack first. ")) << chip.detail;

    model->selectAll(Tick::on);
    model->setCategory(CleanupCategory::appCaches, Tick::on);
    model->selectSafeOnly();
    EXPECT_FALSE(item("slack-cache").isSelected);

    model->selectionBinding(item("slack-cache")).set(Tick::on);
    clean();
    EXPECT_TRUE(model->failedTitles().empty());
    EXPECT_FALSE(machine.has("~/.config/Slack/Cache/one"));
}

TEST_F(RunningCheck, AsksAgainRightBeforeTheRemoval) {
    scan();
    ASSERT_TRUE(item("slack-cache").isSelected);
    const RunningProgram started(slack);
    clean();
    EXPECT_EQ(model->failedTitles(), std::vector<std::string>{"Slack cache"});
    EXPECT_TRUE(machine.has("~/.config/Slack/Cache/one"));
    EXPECT_FALSE(machine.has("~/.cache/pip/one"));
    EXPECT_EQ(model->freedBytes(), 4096);
}

/// What a crash left behind keeps nobody from cleaning.
TEST_F(RunningCheck, BelievesALockOnlyWhileItsProcessRuns) {
    machine.link("~/.config/Slack/SingletonLock", "elsewhere-1");
    scan();
    EXPECT_TRUE(item("slack-cache").isSelected);
}

}  // namespace tidewell
