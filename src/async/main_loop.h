#pragma once

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <map>
#include <memory>
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
    void fail(std::exception_ptr failure) noexcept override;

    /// Runs what is due now; what that posts waits for the next turn. A turn that fails stops no
    /// other; the first failure is told at the end. Main thread only.
    void runTurn();
    /// Zero when a turn is due; absent when only a post can bring the next one.
    std::optional<Duration> timeToNextTurn();

 protected:
    using Failed = std::function<void(const std::exception_ptr&)>;

    MainLoop(std::function<void()> wake, Failed failed)
        : wake_(std::move(wake)), failed_(std::move(failed)) {}
    /// Drops the spawned tasks, then waits for the background calls under way. For the destructors
    /// of the derived classes: what those calls post finds the object whole until they have ended.
    void end();

    /// Blocks until a turn is due.
    void waitForTurn();

 private:
    enum class Started { yes, no };
    Started startThread(std::shared_ptr<Work> work);
    void countWorkers(int change);
    void attempt(Work& work) noexcept;
    std::exception_ptr takeFailure();

    std::function<void()> wake_;
    Failed failed_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Work> turns_;
    int workers_ = 0;
    std::exception_ptr failure_;  ///< the first that nobody has been told of
    std::multimap<Clock::time_point, Work> timers_;
};

/// The main thread of a program without a toolkit: run() blocks until quit().
class RunLoop final : public MainLoop {
 public:
    RunLoop() : MainLoop([] {}, std::rethrow_exception) {}
    ~RunLoop() override { end(); }

    /// Throws what failed, behind the turn in which it was told.
    void run();
    /// Ends run() after the turn in hand. Main thread only.
    void quit() { quitting_ = true; }

 private:
    bool quitting_ = false;
};

/// The main thread inside a toolkit's own loop, which calls runTurn() soon after `wake` was called
/// or timeToNextTurn() has passed. `wake` is called from any thread, `failed` on the main thread.
class GuestLoop final : public MainLoop {
 public:
    using MainLoop::Failed;
    GuestLoop(std::function<void()> wake, Failed failed)
        : MainLoop(std::move(wake), std::move(failed)) {}
    ~GuestLoop() override { end(); }
};

}  // namespace tidewell
