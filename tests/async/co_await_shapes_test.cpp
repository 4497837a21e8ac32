// The shapes of co_await that this program is written in, each around an object that counts how
// often it is destroyed. g++ 12 compiles some others (a lambda with captures, braces or "?:" in the
// same expression) into code that destroys such an object twice or never.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

#include "async/background.h"
#include "support/test_loop.h"

namespace tidewell::test {

namespace {

using namespace std::chrono_literals;

int alive = 0;

/// Counts itself, and owns memory that a second destruction would free again.
struct Counted {
    explicit Counted(int number = 1) : value(std::make_unique<int>(number)) { ++alive; }
    Counted(const Counted& other) : value(std::make_unique<int>(*other.value)) { ++alive; }
    Counted(Counted&& other) noexcept : value(std::move(other.value)) { ++alive; }
    Counted& operator=(Counted other) {
        value.swap(other.value);
        return *this;
    }
    ~Counted() { --alive; }

    std::unique_ptr<int> value;
};

struct Pair {
    Counted left;
    Counted right;
};

Task<Counted> give(Counted given) {
    co_await sleepFor(1ms);
    co_return given;
}

Task<bool> holds(Counted given, std::function<bool(int)> test) {
    co_await sleepFor(1ms);
    co_return test(*given.value);
}

Task<Pair> givePair(std::shared_ptr<Counted> shared) {
    co_await sleepFor(1ms);
    Pair pair{*shared, *shared};
    co_return pair;
}

Task<int> temporaries() {
    auto first = co_await give(Counted(1));
    first = co_await give(std::move(first));
    co_await give(first);
    const auto shared = co_await givePair(std::make_shared<Counted>(2));
    co_return *first.value + *shared.right.value;
}

Task<int> namedLambdas() {
    const Counted captured(3);
    auto working = background([captured] { return captured; });
    auto value = co_await working;
    const std::function<bool(int)> test = [captured](int number) {
        return number == *captured.value;
    };
    auto holding = holds(value, test);
    const bool isHeld = co_await holding;
    co_return isHeld ? *value.value : 0;
}

Task<Counted> failing(Counted given) {
    co_await sleepFor(1ms);
    if (*given.value > 0) throw std::runtime_error("failed");
    co_return given;
}

Task<int> failures() {
    const Counted local(1);
    int caught = 0;
    try {
        const auto none = co_await failing(Counted(0));
        auto working = background([local]() -> Counted { throw Counted(*local.value); });
        co_await working;
    } catch (const Counted& thrown) {
        caught = *thrown.value;
    }
    try {
        co_await failing(local);
    } catch (const std::exception&) {
        ++caught;
    }
    co_return caught;
}

using Shape = Task<int> (*)();

Task<> run(Shape shape, int& outcome) {
    auto task = shape();
    outcome = co_await task;
}

struct Row {
    const char* name;
    Shape shape;
    int outcome;
};

constexpr Row rows[] = {
    {"temporaries", temporaries, 3},
    {"named lambdas", namedLambdas, 3},
    {"failures", failures, 2},
};

TEST(CoAwaitShapesTest, DestroyEverythingOnceWhereverTheyAreDroppedAndWhenTheyEnd) {
    constexpr int stepsToTheEnd = 20;
    for (const auto& row : rows) {
        for (const int steps : {0, 1, 2, 3, 4, 5, 6, 7, stepsToTheEnd}) {
            alive = 0;
            int outcome = -1;
            {
                TestLoop loop;
                spawn(run(row.shape, outcome));
                for (int step = 0; step < steps; ++step) {
                    loop.runAll();
                    loop.advance(1ms);
                }
                if (steps == stepsToTheEnd) {
                    EXPECT_EQ(alive, 0) << row.name;
                    EXPECT_EQ(outcome, row.outcome) << row.name;
                }
            }
            EXPECT_EQ(alive, 0) << row.name << ", dropped after " << steps << " steps";
        }
    }
}

}  // namespace

}  // namespace tidewell::test
