#include "performance/screens/performance_content.h"

#include <gtest/gtest.h>

namespace tidewell::test {
namespace {

using Phase = PerformanceViewModel::Phase;

RunningApp runningApp(std::int32_t id, std::string name, ByteCount memoryBytes) {
    return {.id = id,
            .name = std::move(name),
            .bundleID = {},
            .url = {},
            .memoryBytes = memoryBytes,
            .process = {.id = id}};
}

class PerformanceContentTest : public testing::Test {
 protected:
    void SetUp() override {
        model.phase = Phase::list;
        model.memoryUsed = 11'990'000'000;
        model.memoryTotal = 17'180'000'000;
    }

    PerformanceContent content(PerformancePanel panel = PerformancePanel::memory) const {
        return performanceContent(model, panel);
    }

    PerformanceViewModel model{Host()};
};

TEST_F(PerformanceContentTest, BeforeAndDuringAScanThereIsNoList) {
    model.apps = std::vector{runningApp(1, "Paint", 5)};
    model.loginItems = std::vector<LoginItem>(1);
    model.lastMessage = "Asked Paint to quit. Its memory frees as it closes.";
    model.phase = Phase::idle;
    EXPECT_EQ(content().subtitle, "");
    model.phase = Phase::scanning;
    EXPECT_EQ(content().subtitle, "Reading memory and startup items");
    EXPECT_TRUE(content().panels.empty());
    EXPECT_TRUE(content().apps.empty());
    EXPECT_TRUE(content().loginItems.empty());
    EXPECT_EQ(content().message, std::nullopt);
}

TEST_F(PerformanceContentTest, TheListBeginsWithAllMemory) {
    EXPECT_EQ(content().subtitle, "11.99 GB of 17.18 GB memory in use");
    EXPECT_EQ(content().memoryLine, "11.99 GB of 17.18 GB");
    EXPECT_EQ(content().memoryPercent, "69");
    EXPECT_DOUBLE_EQ(content().memoryFraction, 11.99 / 17.18);
    EXPECT_TRUE(content().apps.empty()) << "an empty list has a heading all the same";

    model.memoryUsed = 20'000'000'000;
    EXPECT_EQ(content().memoryPercent, "100") << "more than there is";
    model.memoryTotal = 0;
    EXPECT_EQ(content().memoryPercent, "0");
    EXPECT_EQ(content().memoryLine, "20 GB of Zero KB");

    model.lastMessage = "Paint wouldn't quit. It may have unsaved work open.";
    EXPECT_EQ(content().message, model.lastMessage());
}

TEST_F(PerformanceContentTest, EachApplicationIsMeasuredAgainstTheLargest) {
    model.apps = std::vector{runningApp(3, "Paint", 2'000'000'000), runningApp(9, "Mail", 1),
                             runningApp(4, "Unread", 0), runningApp(5, "Odd", -1)};
    model.busyPID = 9;
    const auto rows = content().apps;
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0].app.name, "Paint");
    EXPECT_EQ(rows[0].size, "2 GB");
    EXPECT_EQ(rows[0].fraction, 1);
    EXPECT_FALSE(rows[0].isBusy);
    EXPECT_EQ(rows[1].size, "1 byte");
    EXPECT_EQ(rows[1].fraction, 5e-10);
    EXPECT_TRUE(rows[1].isBusy);
    for (const auto unread : {2, 3}) {
        EXPECT_EQ(rows[static_cast<std::size_t>(unread)].size, "—");
        EXPECT_EQ(rows[static_cast<std::size_t>(unread)].fraction, 0);
    }
}

}  // namespace
}  // namespace tidewell::test
