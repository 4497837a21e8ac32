#include "async/background.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/test_loop.h"

namespace tidewell::test {

namespace {

using Names = std::vector<std::string>;

Task<> readOne(Names& log) {
    auto reading = background([] { return std::make_unique<std::string>("value"); });
    log.push_back("started");
    const auto value = co_await reading;
    log.push_back(*value);
}

TEST(BackgroundTest, StartsAtOnceAndComesBackInATurnOfTheMainThread) {
    TestLoop loop;
    Names log;
    spawn(readOne(log));
    EXPECT_EQ(loop.inBackground(), 0u);
    loop.runTurns();
    EXPECT_EQ(log, Names{"started"});
    EXPECT_EQ(loop.inBackground(), 1u);
    loop.finish();
    EXPECT_EQ(log, (Names{"started", "value"}));
}

/// The loop that the scans are written with: at most `width` in flight, the next when one ends.
Task<> measureAll(Names names, int width, Names& order) {
    BackgroundGroup<std::string> measuring;
    auto next = names.begin();
    const auto startNext = [&] {
        measuring.start([name = *next] { return name; });
        ++next;
    };
    while (next != names.end() && measuring.running() < width) startNext();
    while (measuring.running() > 0) {
        auto name = co_await measuring.next();
        order.push_back(std::move(name));
        if (next != names.end()) startNext();
    }
    order.push_back("end");
}

TEST(BackgroundGroupTest, GivesValuesInTheOrderOfTheirEndsAndKeepsToItsWidth) {
    TestLoop loop;
    Names order;
    spawn(measureAll({"a", "b", "c", "d", "e"}, 3, order));
    loop.runTurns();
    EXPECT_EQ(loop.inBackground(), 3u);
    loop.finish(2);
    EXPECT_EQ(order, Names{"c"});
    EXPECT_EQ(loop.inBackground(), 3u) << "a, b and the one that followed c";
    loop.finish(2);
    loop.finish(0);
    loop.runAll();
    EXPECT_EQ(order, (Names{"c", "d", "a", "b", "e", "end"}));
}

Task<> takeTwo(BackgroundGroup<int>& group, std::vector<int>& taken) {
    taken.push_back(0);
    auto first = co_await group.next();
    taken.push_back(first);
    auto second = co_await group.next();
    taken.push_back(second);
}

TEST(BackgroundGroupTest, KeepsValuesThatEndBeforeAnybodyAsks) {
    TestLoop loop;
    BackgroundGroup<int> group;
    group.start([] { return 1; });
    group.start([] { return 2; });
    loop.runAll();
    EXPECT_EQ(group.running(), 2) << "a call runs until its value is taken";
    std::vector<int> taken;
    spawn(takeTwo(group, taken));
    loop.runTurns();
    EXPECT_EQ(taken, (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(group.running(), 0);
}

Task<> firstOnly(int& value) {
    BackgroundGroup<int> group;
    group.start([] { return 1; });
    group.start([] { return 2; });
    value = co_await group.next();
}

TEST(BackgroundGroupTest, MayGoAwayBeforeItsCallsEnd) {
    TestLoop loop;
    int value = 0;
    spawn(firstOnly(value));
    loop.runTurns();
    loop.finish(1);
    EXPECT_EQ(value, 2);
    loop.finish();
    EXPECT_EQ(value, 2);
}

Task<> takeUntilOneFails(std::vector<int>& taken) {
    BackgroundGroup<int> group;
    group.start([] { return 1; });
    group.start([]() -> int { throw std::runtime_error("no memory"); });
    group.start([] { return 3; });
    while (group.running() > 0) {
        try {
            auto value = co_await group.next();
            taken.push_back(value);
        } catch (const std::runtime_error&) {
            taken.push_back(-1);
        }
    }
}

Task<> awaitsWhatFails(Names& log) {
    auto reading = background([]() -> int { throw std::runtime_error("no memory"); });
    co_await reading;
    log.push_back("went on");
}

Task<> awaitsATaskThatFails(Names& log) {
    try {
        co_await awaitsWhatFails(log);
    } catch (const std::runtime_error&) {
        log.push_back("failed");
        throw;
    }
}

TEST(BackgroundTest, BringsAFailureToWhoeverAwaitsItAndToTheExecutorIfNobodyKeepsIt) {
    TestLoop loop;
    std::vector<int> taken;
    spawn(takeUntilOneFails(taken));
    loop.runAll();
    EXPECT_EQ(taken, (std::vector<int>{1, -1, 3}));

    Names log;
    spawn(awaitsATaskThatFails(log));
    EXPECT_THROW(loop.runAll(), std::runtime_error);
    EXPECT_EQ(log, Names{"failed"});
}

TEST(BackgroundTest, DropsAtQuitWhatWaitsForCallsThatNeverEnd) {
    Names order;
    {
        TestLoop loop;
        spawn(measureAll({"a", "b"}, 2, order));
        spawn(readOne(order));
        loop.runTurns();
    }
    EXPECT_EQ(order, Names{"started"});
}

}  // namespace

}  // namespace tidewell::test
