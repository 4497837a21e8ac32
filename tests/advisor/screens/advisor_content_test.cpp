#include "advisor/screens/advisor_content.h"

#include <gtest/gtest.h>

#include "platform/dates.h"

namespace tidewell::test {
namespace {

using Phase = AdvisorViewModel::Phase;

SimRuntime sampleRuntime(std::string id, ByteCount size) {
    SimRuntime runtime;
    runtime.name = "iOS " + id;
    runtime.id = std::move(id);
    runtime.sizeBytes = size;
    return runtime;
}

class AdvisorContentTest : public testing::Test {
 protected:
    void SetUp() override { model.phase = Phase::list; }

    AdvisorContent content() const { return advisorContent(model, moment); }
    Findings& findings() { return model.findings.mutate(); }

    AdvisorViewModel model{Host()};
    const Date moment = *parseIso8601("2026-06-15T12:00:00Z", Fractions::absent);
};

TEST_F(AdvisorContentTest, BeforeAndDuringAScanThereIsOnlyANotice) {
    findings().dockerBytes = 1;
    model.lastMessage = "Removed 1 unavailable simulator.";
    for (const auto phase : {Phase::idle, Phase::scanning}) {
        model.phase = phase;
        ASSERT_TRUE(content().notice);
        EXPECT_EQ(content().notice->symbol, "wand.and.stars");
        EXPECT_TRUE(content().cards.empty());
        EXPECT_FALSE(content().message);
    }
}

TEST_F(AdvisorContentTest, WithNothingFoundTheAllClearStandsUnderTheMessage) {
    model.lastMessage = "Deleted iOS 17.5. If the space doesn't show up, a restart releases it.";
    EXPECT_EQ(content().headline, "You're all good.");
    ASSERT_TRUE(content().notice);
    EXPECT_EQ(content().notice->title, "You're all good");
    EXPECT_EQ(content().notice->line,
              "No runtimes, dead simulators, snapshots, or Docker bloat to trim.");
    EXPECT_TRUE(content().cards.empty());
    EXPECT_EQ(content().message, model.lastMessage());
}

TEST_F(AdvisorContentTest, EachFindingHasItsCardInAFixedOrder) {
    findings() = {{sampleRuntime("17.5", 7'000'000'000), sampleRuntime("16.4", 500'000'000)},
                  3,
                  2,
                  64'000'000'000};
    const auto cards = content().cards;
    ASSERT_EQ(cards.size(), 4);
    EXPECT_FALSE(content().notice);
    EXPECT_EQ(content().headline, "7.5 GB of easy wins found.");

    EXPECT_EQ(cards[0].title, "iOS Simulator runtimes");
    EXPECT_EQ(cards[0].size, "7.5 GB");
    EXPECT_EQ(cards[0].runtimes.size(), 2);
    EXPECT_EQ(cards[1].body, "3 simulators whose runtime is gone. Dead weight.");
    EXPECT_EQ(cards[1].button->label, "Remove All");
    EXPECT_TRUE(cards[2].body.starts_with("2 local snapshots counted as “System Data”."));
    EXPECT_EQ(cards[2].button->label, "Thin Snapshots");
    EXPECT_TRUE(cards[3].body.starts_with(
        "Docker keeps all images and containers in one 64 GB virtual disk. Reclaim"));
    EXPECT_FALSE(cards[3].button);
    EXPECT_FALSE(cards[3].size);
}

TEST_F(AdvisorContentTest, OneOfAKindIsWordedInTheSingularAndNothingOfUnknownSizeIsSummed) {
    findings() = {{}, 1, 1, 64'000'000'000};
    const auto cards = content().cards;
    ASSERT_EQ(cards.size(), 3);
    EXPECT_TRUE(cards[0].body.starts_with("1 simulator whose"));
    EXPECT_TRUE(cards[1].body.starts_with("1 local snapshot counted"));
    EXPECT_EQ(content().headline, "A few easy wins found.");
}

TEST_F(AdvisorContentTest, OnlyTheControlOfTheActionUnderWayIsBusy) {
    using enum AdvisorControlState;
    auto fixed = sampleRuntime("16.4", 1);
    fixed.deletable = false;
    findings() = {{sampleRuntime("17.5", 2), fixed}, 1, 1, 0};
    const struct {
        std::optional<std::string> busyAction;
        AdvisorControlState states[4];
    } rows[] = {
        {std::nullopt, {ready, disabled, ready, ready}},
        {"17.5", {busy, disabled, ready, ready}},
        {"16.4", {ready, busy, ready, ready}},
        {"unavailable-sims", {ready, disabled, busy, ready}},
        {"snapshots", {ready, disabled, ready, busy}},
    };
    for (const auto& [busyAction, states] : rows) {
        model.busyAction = busyAction;
        const auto cards = content().cards;
        EXPECT_EQ(cards.at(0).runtimes.at(0).deleteButton, states[0]);
        EXPECT_EQ(cards.at(0).runtimes.at(1).deleteButton, states[1]);
        EXPECT_EQ(cards.at(1).button->state, states[2]);
        EXPECT_EQ(cards.at(2).button->state, states[3]);
    }
}

}  // namespace
}  // namespace tidewell::test
