#include "async/paced_observer.h"

#include <gtest/gtest.h>

#include "support/test_loop.h"

namespace tidewell::test {
namespace {

using namespace std::chrono_literals;

TEST(PacedObserver, TellsOfTheFirstChangeInTheNextTurnAndThenOncePerInterval) {
    TestLoop loop;
    Signal signal;
    int told = 0;
    PacedObserver observer(16ms, [&] { ++told; });
    observer.watch(signal);

    signal.fire();
    signal.fire();
    EXPECT_EQ(told, 0);
    loop.runTurns();
    EXPECT_EQ(told, 1);

    for (int change = 0; change < 5; ++change) {
        signal.fire();
        loop.runTurns();
        loop.advance(3ms);
    }
    EXPECT_EQ(told, 1) << "15 ms have passed";
    loop.advance(1ms);
    EXPECT_EQ(told, 2);
    loop.advance(1h);
    EXPECT_EQ(told, 2) << "nothing has changed since";

    signal.fire();
    loop.runTurns();
    EXPECT_EQ(told, 3) << "after a rest the next turn is soon enough";
}

TEST(PacedObserver, TellsNothingOnceItIsGone) {
    TestLoop loop;
    Signal signal;
    int told = 0;
    {
        PacedObserver observer(16ms, [&] { ++told; });
        observer.watch(signal);
        signal.fire();
        loop.runTurns();
        signal.fire();
    }
    signal.fire();
    loop.runTurns();
    loop.advance(1s);
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace tidewell::test
