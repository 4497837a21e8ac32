#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <optional>

#include "async/executor.h"

namespace tidewell {

/// Turns, timers and threads on the real clock: what RunLoop and GuestLoop share.
class MainLoop : public Executor {
 public:
    using Clock = std::chrono::steady_clock;

    void post(Work turn) override;
    void postAfter(Duration delay, Work turn) override;
    void startInBackground(Work work) override;

    /// Runs what is due now; what that posts waits for the next turn. Main thread only.
    void runTurn();
    /// Zero when a turn is due; absent when only a post can bring the next one.
    std::optional<Duration> timeToNextTurn();

 protected:
    explicit MainLoop(std::function<void()> wake) : wake_(std::move(wake)) {}
    /// Drops the spawned tasks, then waits for the background calls under way. For the destructors
    /// of the derived classes: what those calls post finds the object whole until they have ended.
    void end();

    /// Blocks until a turn is due.
    void waitForTurn();

 private:
    std::function<void()> wake_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Work> turns_;
    int workers_ = 0;
    std::multimap<Clock::time_point, Work> timers_;
};

/// The main thread of a program without a toolkit: run() blocks until quit().
class RunLoop final : public MainLoop {
 public:
    RunLoop() : MainLoop([] {}) {}
    ~RunLoop() override { end(); }

    void run();
    /// Ends run() after the turn in hand. Main thread only.
    void quit() { quitting_ = true; }

 private:
    bool quitting_ = false;
};

/// The main thread inside a toolkit's own loop, which calls runTurn() soon after `wake` was called
/// or timeToNextTurn() has passed. `wake` is called from any thread.
class GuestLoop final : public MainLoop {
 public:
    explicit GuestLoop(std::function<void()> wake) : MainLoop(std::move(wake)) {}
    ~GuestLoop() override { end(); }
};

}  // namespace tidewell
