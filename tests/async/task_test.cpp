#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "async/executor.h"
#include "support/test_loop.h"

namespace tidewell::test {

namespace {

using namespace std::chrono_literals;
using Log = std::vector<std::string>;

/// Notes when it goes.
struct Trace {
    Trace(Log& into, std::string called) : log(into), name(std::move(called)) {}
    Trace(const Trace&) = delete;
    ~Trace() { log.push_back(name + " gone"); }

    Log& log;
    std::string name;
};

Task<std::unique_ptr<int>> doubled(Log& log, std::unique_ptr<int> number) {
    log.push_back("inner");
    co_return std::make_unique<int>(2 * *number);
}

Task<> outer(Log& log) {
    log.push_back("outer");
    auto task = doubled(log, std::make_unique<int>(21));
    log.push_back("made");
    const auto result = co_await task;
    log.push_back(std::to_string(*result));
}

TEST(TaskTest, RunsWhenItIsAwaitedAndHandsItsResultToWhoAwaitsIt) {
    TestLoop loop;
    Log log;
    spawn(outer(log));
    EXPECT_TRUE(log.empty()) << "a spawned task begins in a later turn";
    loop.runTurn();
    EXPECT_EQ(log, (Log{"outer", "made", "inner", "42"}));
}

Task<> neverAwaited(Log& log, std::shared_ptr<Trace> kept) {
    log.push_back(kept->name + " seen");
    co_return;
}

TEST(TaskTest, NeverRunsUnawaitedAndLetsGoOfItsParameters) {
    TestLoop loop;
    Log log;
    { const auto task = neverAwaited(log, std::make_shared<Trace>(log, "parameter")); }
    EXPECT_EQ(log, Log{"parameter gone"});
}

Task<> sleeper(Log& log, std::string name, Duration delay) {
    co_await sleepFor(delay);
    log.push_back(name);
}

TEST(TaskTest, SleepsForAsLongAsToldAndEqualTimesInOrder) {
    TestLoop loop;
    Log log;
    spawn(sleeper(log, "late", 900ms));
    spawn(sleeper(log, "early", 300ms));
    spawn(sleeper(log, "early too", 300ms));
    loop.runTurns();
    loop.advance(299ms);
    EXPECT_TRUE(log.empty());
    loop.advance(1ms);
    EXPECT_EQ(log, (Log{"early", "early too"}));
    loop.advance(1h);
    EXPECT_EQ(log.back(), "late");
}

Task<> inner(Log& log) {
    const Trace trace(log, "inner");
    co_await sleepFor(1h);
    log.push_back("woke");
}

Task<> waiting(Log& log) {
    const Trace trace(log, "outer");
    co_await inner(log);
}

TEST(TaskTest, IsDroppedAtQuitWithAllThatItAwaits) {
    Log log;
    {
        TestLoop loop;
        spawn(waiting(log));
        spawn(waiting(log));
        loop.runTurn();
        spawn(outer(log));  // never gets its first turn
        EXPECT_TRUE(log.empty());
    }
    EXPECT_EQ(log, (Log{"inner gone", "outer gone", "inner gone", "outer gone"}));
}

/// What a view model looks like to the executor.
struct Model {
    explicit Model(Log& into) : trace(into, "model") {}
    Task<> operation(std::string text, std::unique_ptr<int> number) {
        co_await sleepFor(1s);
        trace.log.push_back(text + std::to_string(*number));
    }
    Trace trace;
};

TEST(TaskTest, KeepsItsObjectAliveUntilTheOperationHasEnded) {
    TestLoop loop;
    Log log;
    auto model = std::make_shared<Model>(log);
    spawn(model, &Model::operation, std::string("operation "), std::make_unique<int>(7));
    model.reset();
    loop.runTurns();
    EXPECT_TRUE(log.empty());
    loop.advance(1s);
    EXPECT_EQ(log, (Log{"operation 7", "model gone"}));
}

Task<int> one() {
    co_return 1;
}

Task<> many(int& sum, int times) {
    for (int time = 0; time < times; ++time) sum += co_await one();
}

TEST(TaskTest, AwaitsManyTasksThatEndAtOnceInOneLoop) {
    TestLoop loop;
    int sum = 0;
    spawn(many(sum, 1000));
    loop.runTurn();
    EXPECT_EQ(sum, 1000);
}

Task<> awaitedTwice() {
    auto task = one();
    co_await task;
    co_await task;
}

TEST(TaskDeathTest, EndsTheProcessOnASecondAwait) {
    TestLoop loop;
    EXPECT_DEATH(
        {
            spawn(awaitedTwice());
            loop.runTurn();
        },
        "");
    EXPECT_DEATH(TestLoop second, "") << "there is one main thread";
}

}  // namespace

}  // namespace tidewell::test
