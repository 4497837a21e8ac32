#include "shell/screens/smart_scan_content.h"

#include <chrono>
#include <vector>

#include "platform/dates.h"
#include "shell/smart_scan_test.h"

namespace tidewell::test {
namespace {

using Tool = SmartScanController::Tool;
using std::chrono::days;

class SmartScanContentTest : public SmartScanTest {
 protected:
    SmartScanContent content() const { return smartScanContent(*controller, moment); }
    RingSegmentContent segment(Tool tool) const {
        return content().segments.at(static_cast<std::size_t>(tool));
    }
    ToolCardContent card(Tool tool) const {
        return content().cards.at(static_cast<std::size_t>(tool));
    }
    std::vector<std::string> insights() const {
        std::vector<std::string> texts;
        for (const auto& insight : content().insights) texts.push_back(insight.text);
        return texts;
    }
    void finishAllTools() {
        cleanup->phase = CleanupViewModel::Phase::review;
        apps->phase = AppsViewModel::Phase::list;
        deepScan->phase = DeepScanViewModel::Phase::list;
        advisor->phase = AdvisorViewModel::Phase::list;
    }

    const Date moment = *parseIso8601("2026-06-15T12:00:00Z", Fractions::absent);
};

TEST_F(SmartScanContentTest, TheRingFillsWithTheToolAtWorkAndKeepsWhatIsFinished) {
    cleanup->phase = CleanupViewModel::Phase::done;
    apps->phase = AppsViewModel::Phase::scanning;
    apps->scanProgress = 0.5;
    deepScan->scanProgress = 0.25;  // left by an earlier scan
    controller->phase = Phase::apps;
    EXPECT_EQ(segment(Tool::clean).fill, 1.0);
    EXPECT_EQ(segment(Tool::apps).fill, 0.5);
    EXPECT_EQ(segment(Tool::deepScan).fill, 0.0);
    EXPECT_EQ(content().fraction, 0.375);
    EXPECT_EQ(content().centre.figure, "37%");
    EXPECT_EQ(content().centre.symbol, "square.grid.2x2.fill");

    deepScan->phase = DeepScanViewModel::Phase::list;  // finished by itself, before its turn
    EXPECT_EQ(segment(Tool::deepScan).fill, 1.0);
}

TEST_F(SmartScanContentTest, TheAdvisorWarmsWithoutProgress) {
    finishAllTools();
    advisor->phase = AdvisorViewModel::Phase::scanning;
    controller->phase = Phase::advisor;
    EXPECT_TRUE(segment(Tool::advisor).warming);
    EXPECT_EQ(segment(Tool::advisor).fill, 0.0);
    EXPECT_EQ(content().centre.figure, "75%");
    controller->phase = Phase::done;
    EXPECT_FALSE(segment(Tool::advisor).warming);
}

TEST_F(SmartScanContentTest, ACardTellsWhereItsToolStandsAndOpensItOnceTheRunIsOver) {
    cleanup->phase = CleanupViewModel::Phase::review;
    apps->phase = AppsViewModel::Phase::scanning;
    controller->phase = Phase::apps;
    EXPECT_EQ(card(Tool::clean).status, ToolCardStatus::done);
    EXPECT_EQ(card(Tool::clean).line, "Spotless");
    EXPECT_FALSE(card(Tool::clean).opens);
    EXPECT_EQ(card(Tool::apps).line, "scanning");
    EXPECT_EQ(card(Tool::deepScan).line, "up next");
    EXPECT_EQ(card(Tool::deepScan).opacity, 0.55);

    EXPECT_EQ(content().title, "Reading your apps…");
    controller->stop();
    EXPECT_EQ(content().title, "Scan stopped");
    EXPECT_TRUE(card(Tool::clean).opens);
    EXPECT_EQ(card(Tool::clean).hoverMark, "tap to view");
    EXPECT_EQ(card(Tool::apps).line, "skipped");
    EXPECT_FALSE(card(Tool::apps).opens);
    EXPECT_EQ(card(Tool::apps).opacity, 0.55);
    EXPECT_EQ(card(Tool::apps).mark, "");

    apps->phase = AppsViewModel::Phase::list;  // the scan in hand ends after the stop
    EXPECT_EQ(card(Tool::apps).line, "0 apps");
    EXPECT_TRUE(card(Tool::apps).opens);
    EXPECT_EQ(card(Tool::apps).opacity, 1.0);
}

TEST_F(SmartScanContentTest, AFinishedCardShowsWhatItsToolFound) {
    finishAllTools();
    controller->phase = Phase::done;
    EXPECT_EQ(card(Tool::deepScan).line, "Tidy");
    EXPECT_EQ(card(Tool::advisor).line, "All clear");
    advisor->findings.mutate().snapshotCount = 1;
    EXPECT_EQ(card(Tool::advisor).line, "Wins found");
    advisor->findings.mutate().runtimes = {runtimeOfSize(7'000'000'000)};
    EXPECT_EQ(card(Tool::advisor).line, "7 GB");
    cleanup->items = CleanupItems{junk("Logs", 1)};
    EXPECT_EQ(card(Tool::clean).line, "1 byte");
    deepScan->items = std::vector{bigItem("disk.img", 90'000'000)};
    EXPECT_EQ(card(Tool::deepScan).line, "90 MB");
    EXPECT_EQ(card(Tool::deepScan).section, Mode::deepScan);
}

TEST_F(SmartScanContentTest, TheCentreSumsWhatThreeToolsFoundOrGivesTheAllClear) {
    controller->phase = Phase::done;
    EXPECT_EQ(content().centre.symbol, "checkmark.seal.fill");
    EXPECT_EQ(content().centre.caption, "all clear");
    cleanup->items = CleanupItems{junk("Logs", 1'000'000'000)};
    deepScan->items = std::vector{bigItem("disk.img", 2'000'000'000)};
    advisor->findings.mutate().runtimes = {runtimeOfSize(500'000'000)};
    advisor->findings.mutate().dockerBytes = 64'000'000'000;  // nothing that is reclaimed here
    EXPECT_EQ(content().centre.figure, "3.5 GB");
    EXPECT_EQ(content().centre.caption, "found");
    EXPECT_EQ(content().centre.symbol, "");
}

TEST_F(SmartScanContentTest, InsightsNameTheBiggestWinTheUntouchedAppsAndOneMore) {
    controller->phase = Phase::done;
    EXPECT_TRUE(insights().empty());
    deepScan->items = std::vector{bigItem("disk.img", 90'000'000), bigItem("b", 80'000'000)};
    EXPECT_EQ(insights(), std::vector<std::string>{"Largest item on disk: disk.img (90 MB)."});

    cleanup->items = CleanupItems{junk("Xcode DerivedData", 2'500'000'000), junk("Logs", 1)};
    apps->apps = std::vector{appLastUsed(moment - days(400)), appLastUsed(moment - days(91))};
    advisor->findings.mutate().runtimes = {runtimeOfSize(7'000'000'000)};
    const std::vector<std::string> expected = {
        "Biggest win: Xcode DerivedData, 2.5 GB. Ready to clean.",
        "2 apps untouched for 3+ months. Worth a look.",
        "Advisor can free 7 GB for you.",
    };
    EXPECT_EQ(insights(), expected);
    EXPECT_EQ(content().insights[1].section, Mode::apps);

    controller->phase = Phase::advisor;
    EXPECT_TRUE(insights().empty()) << "only once the run is over";
}

TEST_F(SmartScanContentTest, AnAppIsUntouchedFromTheNinetiethDayOn) {
    controller->phase = Phase::done;
    const struct {
        std::optional<Date> lastUsed;
        bool counts;
    } rows[] = {
        {moment - days(90), true},
        {moment - days(89), false},
        {moment - days(90) + std::chrono::minutes(1), false},
        {moment + days(200), false},
        {std::nullopt, false},
    };
    for (const auto& [lastUsed, counts] : rows) {
        apps->apps = std::vector{appLastUsed(lastUsed)};
        const std::vector<std::string> line = {"1 app untouched for 3+ months. Worth a look."};
        EXPECT_EQ(insights(), counts ? line : std::vector<std::string>());
    }
}

TEST_F(SmartScanContentTest, ThePrimaryActionOpensTheFirstToolWithAFinding) {
    controller->phase = Phase::done;
    const auto expectAction = [&](std::string_view label, Mode opens) {
        ASSERT_TRUE(content().primaryAction);
        EXPECT_EQ(content().primaryAction->label, label);
        EXPECT_EQ(content().primaryAction->opens, opens);
    };
    EXPECT_FALSE(content().primaryAction);
    advisor->findings.mutate().dockerBytes = 1;
    expectAction("See Advisor wins", Mode::advisor);
    deepScan->items = std::vector{bigItem("disk.img", 1)};
    expectAction("See big items", Mode::deepScan);
    cleanup->items = CleanupItems{junk("Logs", 2'500'000'000)};
    expectAction("Review 2.5 GB of junk", Mode::clean);
    controller->phase = Phase::clean;
    EXPECT_FALSE(content().primaryAction);
}

}  // namespace
}  // namespace tidewell::test
