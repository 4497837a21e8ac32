#include "async/main_loop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <latch>
#include <memory>
#include <new>
#include <string>
#include <thread>
#include <vector>

#include "async/background.h"
#include "async/failure.h"
#include "support/no_more_threads.h"

namespace tidewell::test {

namespace {

using namespace std::chrono_literals;

TEST(RunLoopTest, RunsTurnsAndTimersInOrderUntilItIsToldToQuit) {
    RunLoop loop;
    std::string order;
    loop.postAfter(2ms, [&] {
        order += 'd';
        loop.quit();
    });
    loop.postAfter(1ms, [&] { order += 'c'; });
    loop.post([&] {
        order += 'a';
        loop.post([&] { order += 'b'; });
    });
    loop.run();
    EXPECT_EQ(order, "abcd");
    loop.post([&] { loop.quit(); });
    loop.run();  // may be run again
}

TEST(RunLoopTest, WakesForWhatAnotherThreadPosts) {
    RunLoop loop;
    const auto main = std::this_thread::get_id();
    std::thread::id worker;
    std::thread::id turn;
    loop.startInBackground([&] {
        worker = std::this_thread::get_id();
        loop.post([&] {
            turn = std::this_thread::get_id();
            loop.quit();
        });
    });
    loop.run();
    EXPECT_EQ(turn, main);
    EXPECT_NE(worker, main);
}

/// A toolkit's loop as far as a guest sees it: it sleeps until it is woken or a time has passed,
/// then lets the guest take its turn.
class ForeignLoop {
 public:
    void wake() {
        const std::lock_guard lock(mutex_);
        awake_ = true;
        changed_.notify_one();
    }

    void run(GuestLoop& guest, const bool& ended) {
        while (!ended) {
            std::unique_lock lock(mutex_);
            const auto isAwake = [this] { return awake_; };
            if (const auto delay = guest.timeToNextTurn())
                changed_.wait_for(lock, *delay, isAwake);
            else
                changed_.wait(lock, isAwake);
            awake_ = false;
            lock.unlock();
            guest.runTurn();
        }
    }

 private:
    std::mutex mutex_;
    std::condition_variable changed_;
    bool awake_ = false;
};

Task<> guestOperation(bool& ended, std::vector<int>& values) {
    for (int round = 0; round < 3; ++round) {
        auto work = background([round] { return 10 * round; });
        auto value = co_await work;
        values.push_back(value);
        co_await sleepFor(1ms);
    }
    ended = true;
}

TEST(GuestLoopTest, IsCarriedByAForeignLoopThatItWakes) {
    ForeignLoop foreign;
    bool ended = false;
    std::vector<int> values;
    bool hasFailed = false;
    GuestLoop guest([&] { foreign.wake(); }, [&](const auto&) { hasFailed = true; });
    EXPECT_FALSE(guest.timeToNextTurn()) << "nothing is due, ever";
    guest.postAfter(1h, [] {});
    EXPECT_GT(*guest.timeToNextTurn(), 59min);
    spawn(guestOperation(ended, values));
    EXPECT_EQ(*guest.timeToNextTurn(), Duration::zero());
    foreign.run(guest, ended);
    EXPECT_EQ(values, (std::vector<int>{0, 10, 20}));
    guest.fail(std::make_exception_ptr(std::bad_alloc()));
    EXPECT_EQ(*guest.timeToNextTurn(), Duration::zero());
    guest.runTurn();
    EXPECT_TRUE(hasFailed);
}

/// Calls a few hundred of which run at once and report progress while they do.
struct Counter : std::enable_shared_from_this<Counter> {
    Task<> run(int calls, int width, RunLoop* loop) {
        BackgroundGroup<int> group;
        int started = 0;
        const auto startNext = [&] {
            auto hop = [weak = weak_from_this(), loop](int step) {
                loop->post([weak, step] {
                    if (auto self = weak.lock()) self->progress += step;
                });
            };
            group.start([hop, number = started] {
                for (int step = 0; step < 4; ++step) hop(1);
                return number;
            });
            ++started;
        };
        while (started < width) startNext();
        while (group.running() > 0) {
            sum += co_await group.next();
            if (started < calls) startNext();
        }
        loop->quit();
    }

    int progress = 0;
    int sum = 0;
};

TEST(RunLoopTest, BringsEveryValueAndEveryProgressReportOfManyThreadsHome) {
    RunLoop loop;
    auto counter = std::make_shared<Counter>();
    spawn(counter, &Counter::run, 300, 8, &loop);
    loop.run();
    EXPECT_EQ(counter->sum, 300 * 299 / 2);
    EXPECT_EQ(counter->progress, 300 * 4);
}

Task<> neverEnds(std::latch& started, std::latch& release, std::atomic<bool>& ended, bool& wentOn) {
    auto work = background([&started, &release, &ended, text = std::string(100, 'x')] {
        started.count_down();
        release.wait();
        ended = true;
        return text;
    });
    co_await work;
    wentOn = true;
}

TEST(RunLoopTest, AtQuitDropsWhatWaitsAndWaitsForTheCallsInHand) {
    std::latch started(1);
    std::latch release(1);
    std::atomic<bool> ended = false;
    bool wentOn = false;
    std::thread releasing;
    {
        RunLoop loop;
        spawn(neverEnds(started, release, ended, wentOn));
        loop.runTurn();
        started.wait();
        releasing = std::thread([&] { release.count_down(); });
    }
    EXPECT_TRUE(ended);
    EXPECT_FALSE(wentOn);
    releasing.join();
}

TEST(RunLoopTest, WorksOnByItselfWhereNoThreadIsToBeHad) {
    const NoMoreThreads none;
    ASSERT_THROW(std::thread([] {}), std::system_error);
    RunLoop loop;
    auto counter = std::make_shared<Counter>();
    spawn(counter, &Counter::run, 20, 4, &loop);
    loop.run();
    EXPECT_EQ(counter->sum, 20 * 19 / 2);
    EXPECT_EQ(counter->progress, 20 * 4);
}

/// Fails in each place in which something can: a task, a turn, a call that nobody awaits.
TEST(RunLoopTest, ThrowsWhatFailedAndRunsTheOtherTurns) {
    const auto fail = [] { throw std::bad_alloc(); };
    const std::vector<std::function<void(RunLoop&)>> places = {
        [](RunLoop&) {
            constexpr auto failing = []() -> Task<> {
                auto work = background([]() -> int { throw std::bad_alloc(); });
                co_await work;
            };
            spawn(failing());
        },
        [fail](RunLoop& loop) { loop.post(fail); },
        [fail](RunLoop& loop) { loop.postAfter(1ms, fail); },
        [fail](RunLoop& loop) { loop.startInBackground(fail); },
    };
    for (const auto& place : places) {
        RunLoop loop;
        bool othersRan = false;
        place(loop);
        loop.post([&] { othersRan = true; });
        try {
            loop.run();
            FAIL() << "it was not told";
        } catch (...) {
            EXPECT_EQ(failureText(std::current_exception()), "there is not enough memory");
        }
        EXPECT_TRUE(othersRan);
        loop.post([&] { loop.quit(); });
        loop.run();
    }
}

}  // namespace

}  // namespace tidewell::test
