#include "async/observable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/test_loop.h"

namespace tidewell::test {

namespace {

struct Model {
    Signal willChange;
    Published<int> number{willChange, 1};
    Published<std::vector<int>> rows{willChange};
};

TEST(PublishedTest, FiresBeforeEachChangeAndTheNewValueHoldsAfterwards) {
    Model model;
    std::vector<std::pair<int, std::size_t>> seen;
    const auto token =
        model.willChange.subscribe([&] { seen.emplace_back(model.number(), model.rows().size()); });
    model.number = 2;
    model.rows.mutate().push_back(5);
    model.number = 2;
    EXPECT_EQ(seen, (std::vector<std::pair<int, std::size_t>>{{1, 0}, {2, 0}, {2, 1}}))
        << "an equal value counts as a change";
    EXPECT_EQ(model.number(), 2);
    EXPECT_EQ(model.rows(), std::vector<int>{5});
}

TEST(SignalTest, CallsObserversInTheirOrderUntilTheirTokensGo) {
    Signal signal;
    std::string calls;
    auto first = signal.subscribe([&] { calls += 'a'; });
    Subscription late;
    auto second = signal.subscribe([&] {
        calls += 'b';
        first.reset();
        if (!late) late = signal.subscribe([&] { calls += 'd'; });
    });
    auto third = signal.subscribe([&] { calls += 'c'; });
    signal.fire();
    EXPECT_EQ(calls, "abc") << "who comes while it fires is called from the next time on";
    second.reset();
    signal.fire();
    EXPECT_EQ(calls, "abccd");
}

TEST(SignalTest, DoesNotCallAnObserverThatAnEarlierOneEnded) {
    Signal signal;
    std::string calls;
    Subscription second;
    const auto first = signal.subscribe([&] { second.reset(); });
    second = signal.subscribe([&] { calls += 'b'; });
    signal.fire();
    EXPECT_EQ(calls, "");
}

TEST(OnChangedTest, ComesOnceInTheNextTurnHoweverOftenTheSignalFires) {
    TestLoop loop;
    Model model;
    std::vector<int> seen;
    const auto token = onChanged(model.willChange, [&] {
        seen.push_back(model.number());
        if (model.number() == 3) model.number = 4;
    });
    model.number = 2;
    model.number = 3;
    EXPECT_TRUE(seen.empty());
    loop.runTurn();
    EXPECT_EQ(seen, std::vector<int>{3});
    loop.runTurns();
    EXPECT_EQ(seen, (std::vector<int>{3, 4})) << "a change made by the observer counts too";
}

TEST(OnChangedTest, StaysSilentOnceItsTokenIsGone) {
    TestLoop loop;
    Model model;
    int calls = 0;
    auto token = onChanged(model.willChange, [&] { ++calls; });
    model.number = 2;
    token.reset();
    loop.runTurns();
    model.number = 3;
    loop.runTurns();
    EXPECT_EQ(calls, 0);
}

}  // namespace

}  // namespace tidewell::test
