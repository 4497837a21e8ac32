#include "shell/screens/home_content.h"

#include <limits>

#include "platform/dates.h"
#include "shell/smart_scan_test.h"

namespace tidewell::test {
namespace {

class HomeContentTest : public SmartScanTest {
 protected:
    HomeContent content() const { return homeContent(*controller, readings, moment); }
    std::string value(SmartScanController::Tool tool) const {
        return content().tools.at(static_cast<std::size_t>(tool)).value;
    }
    void cleanedAgo(double seconds) {
        const std::chrono::duration<double> now = moment.time_since_epoch();
        readings.lastCleanupAt = now.count() - seconds;
    }

    HomeReadings readings = {.freeBytes = 250'000'000'000, .volumeBytes = 1'000'000'000'000};
    const Date moment = *parseIso8601("2026-06-15T12:00:00Z", Fractions::absent);
};

TEST_F(HomeContentTest, TheDiskCardShowsWhatIsUsedWhatWaitsForReviewAndWhatWasWon) {
    EXPECT_EQ(content().usedPercent, "75%");
    ASSERT_EQ(content().stats.size(), 2);
    EXPECT_EQ(content().stats[0].value, "750 GB");
    EXPECT_EQ(content().stats[1].value, "1 TB");

    cleanup->phase = CleanupViewModel::Phase::review;
    EXPECT_EQ(content().stats.size(), 2) << "nothing was found";
    cleanup->items = CleanupItems{junk("Logs", 2'500'000'000)};
    ASSERT_EQ(content().stats.size(), 3);
    EXPECT_EQ(content().stats[2].label, "Ready to review");
    EXPECT_EQ(content().stats[2].value, "2.5 GB");
    cleanup->phase = CleanupViewModel::Phase::done;
    EXPECT_EQ(content().stats.size(), 2);

    EXPECT_EQ(content().winnings, "First scan = first win. Try it.");
    readings.totalFreedBytes = 1;
    EXPECT_EQ(content().winnings, "1 byte won back with Tidewell");
    readings.volumeBytes = 0;
    EXPECT_EQ(content().usedPercent, "100%");
}

TEST_F(HomeContentTest, EachToolsCardShowsItsLatestResult) {
    using enum SmartScanController::Tool;
    EXPECT_EQ(value(clean), "Scan Now");
    EXPECT_EQ(value(apps), "See Your Apps");
    EXPECT_EQ(value(deepScan), "Find the Big Stuff");
    EXPECT_EQ(value(advisor), "Free Wins");

    SmartScanTest::advisor->phase = AdvisorViewModel::Phase::list;
    EXPECT_EQ(value(advisor), "All clear");
    SmartScanTest::advisor->findings.mutate().snapshotCount = 1;
    EXPECT_EQ(value(advisor), "Wins available");

    SmartScanTest::apps->phase = AppsViewModel::Phase::list;
    EXPECT_EQ(value(apps), "See Your Apps") << "a scan that found none";
    auto app = appLastUsed(std::nullopt);
    app.sizeBytes = 1'500'000;
    SmartScanTest::apps->apps = std::vector{app, app};
    EXPECT_EQ(value(apps), "2 apps · 3 MB");
    SmartScanTest::deepScan->items = std::vector{bigItem("disk.img", 90'000'000)};
    EXPECT_EQ(value(deepScan), "90 MB in big items");

    cleanup->phase = CleanupViewModel::Phase::review;
    EXPECT_EQ(value(clean), "Zero KB found");
    cleanup->freedBytes = 5'000'000;
    cleanup->phase = CleanupViewModel::Phase::done;
    EXPECT_EQ(value(clean), "5 MB freed");
}

TEST_F(HomeContentTest, TheScheduleCountsThreeDaysFromTheLastCleanup) {
    EXPECT_EQ(content().lastCleanup, "No cleanups yet");
    EXPECT_EQ(content().nextScan, "Run your first scan today");
    const struct {
        double secondsAgo;
        std::string_view nextScan;
    } rows[] = {
        {0, "Next scan in about 3 days"},
        {86'399, "Next scan in about 3 days"},
        {86'400, "Next scan in about 2 days"},
        {172'800, "Next scan in about 1 day"},
        {259'199, "Next scan in about 1 day"},
        {259'200, "A fresh scan is due"},
        {1e9, "A fresh scan is due"},
        {-86'399, "Next scan in about 3 days"},
        {-172'800, "Next scan in about 5 days"},
    };
    for (const auto& [secondsAgo, nextScan] : rows) {
        cleanedAgo(secondsAgo);
        EXPECT_EQ(content().nextScan, nextScan) << secondsAgo;
        EXPECT_TRUE(content().lastCleanup.starts_with("Last cleanup: ")) << secondsAgo;
    }
}

TEST_F(HomeContentTest, AnyStoredMomentIsSurvived) {
    using Limits = std::numeric_limits<double>;
    for (const auto stored : {-1.0, -Limits::infinity(), Limits::quiet_NaN()}) {
        readings.lastCleanupAt = stored;
        EXPECT_EQ(content().lastCleanup, "No cleanups yet");
        EXPECT_EQ(content().nextScan, "Run your first scan today");
    }
    for (const auto stored : {Limits::max(), Limits::infinity()}) {
        readings.lastCleanupAt = stored;
        EXPECT_TRUE(content().lastCleanup.starts_with("Last cleanup: "));
        EXPECT_EQ(content().nextScan, "Next scan in about 85864 days");
    }
}

}  // namespace
}  // namespace tidewell::test
