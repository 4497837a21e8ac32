#include "shell/quitting.h"

#include <gtest/gtest.h>

#include "cleanup/cleanup_view_model.h"
#include "cleanup/stored_sums.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell::test {
namespace {

class QuittingTest : public testing::Test {
 protected:
    void startCleaning() {
        machine.file("~/Library/Caches/Homebrew/one", 2 * megabyte);
        machine.file("~/.npm/_cacache/two", megabyte);
        spawn(model, &CleanupViewModel::startScan);
        loop.runAll();
        model->selectAll(Tick::on);
        ASSERT_EQ(model->selectedItems().size(), 2);
        spawn(model, &CleanupViewModel::cleanSelected);
        loop.runTurns();
    }

    TestLoop loop;
    const SampleMachine machine;
    std::shared_ptr<CleanupViewModel> model = std::make_shared<CleanupViewModel>(machine.host());
    int ends = 0;
    Quitting quitting{{model}, [this] { ++ends; }};
};

TEST_F(QuittingTest, EndsAtOnceWhereNothingIsCleaned) {
    quitting.request();
    EXPECT_EQ(ends, 1);
}

TEST_F(QuittingTest, LetsTheItemInHandEndAndPutsItIntoTheSumAndBeginsNoOther) {
    startCleaning();
    quitting.request();
    loop.runTurns();
    EXPECT_EQ(ends, 0);
    loop.runAll();
    EXPECT_GE(ends, 1);
    EXPECT_FALSE(machine.has("~/Library/Caches/Homebrew/one"));
    EXPECT_TRUE(machine.has("~/.npm/_cacache/two"));
    EXPECT_GE(UserDefaults(machine.host().configurationDirectory).integer(totalFreedBytesKey),
              2 * megabyte);
}

TEST_F(QuittingTest, KeepsNobodyWaitingWhoAsksTwice) {
    startCleaning();
    quitting.request();
    quitting.request();
    EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace tidewell::test
