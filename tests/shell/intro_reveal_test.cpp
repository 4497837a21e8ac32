#include "shell/intro_reveal.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>

#include "support/test_loop.h"

namespace tidewell::test {
namespace {

using namespace std::chrono_literals;

class IntroRevealTest : public testing::Test {
 protected:
    IntroRevealTest() {
        intro->begin();
        loop.runTurns();
    }

    /// Lets time pass, while the film tells where it is every 40 ms.
    void play(Duration time, std::optional<Duration> duration) {
        for (const auto end = played + time; played < end;) {
            played += 40ms;
            intro->filmIsAt(played, duration);
            loop.advance(40ms);
        }
    }

    TestLoop loop;
    int reveals = 0;
    int ends = 0;
    Duration played{};
    const std::shared_ptr<IntroReveal> intro = std::make_shared<IntroReveal>(
        IntroReveal::Actions{.onReveal = [this] { ++reveals; }, .onDone = [this] { ++ends; }});
};

TEST_F(IntroRevealTest, TheFilmGivesWayTwoSecondsBeforeItsEndAndIsGoneThreeSecondsLater) {
    play(2960ms, 5s);
    EXPECT_EQ(reveals, 0);
    EXPECT_EQ(intro->opacity(), 1.0);
    play(40ms, 5s);
    EXPECT_EQ(reveals, 1);
    EXPECT_EQ(intro->opacity(), 0.0);
    play(2960ms, 5s);
    EXPECT_EQ(ends, 0);
    play(40ms, 5s);
    EXPECT_EQ(ends, 1);
}

TEST_F(IntroRevealTest, TheEndOfAShortFilmRevealsBeforeTheFirstTick) {
    intro->filmIsAt(100ms, 100ms);
    loop.advance(100ms);
    intro->filmHasEnded();
    EXPECT_EQ(reveals, 1);
    loop.runTurns();
    loop.advance(2999ms);
    EXPECT_EQ(ends, 0);
    loop.advance(1ms);
    EXPECT_EQ(ends, 1);
}

TEST_F(IntroRevealTest, AFilmThatStallsOrTellsNoLengthHoldsTheWindowForTwelveSeconds) {
    intro->filmIsAt(1s, 5s);
    loop.advance(6s);
    EXPECT_EQ(reveals, 0);
    intro->filmIsAt(60s, std::nullopt);
    loop.advance(5999ms);
    EXPECT_EQ(reveals, 0);
    loop.advance(1ms);
    EXPECT_EQ(reveals, 1);
    loop.advance(3s);
    EXPECT_EQ(ends, 1);
}

TEST_F(IntroRevealTest, WhateverHappensItRevealsAndEndsOnce) {
    intro->filmHasEnded();
    play(5s, 5s);
    intro->filmHasEnded();
    intro->filmIsMissing();
    loop.advance(1min);
    EXPECT_EQ(reveals, 1);
    EXPECT_EQ(ends, 1);
}

TEST_F(IntroRevealTest, WithoutAFilmAllIsShownAtOnce) {
    intro->filmIsMissing();
    EXPECT_EQ(intro->opacity(), 0.0);
    EXPECT_EQ(reveals, 1);
    EXPECT_EQ(ends, 1);
    intro->filmHasEnded();
    loop.advance(1min);
    EXPECT_EQ(reveals, 1);
    EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace tidewell::test
