#pragma once

#include <deque>
#include <exception>
#include <map>
#include <utility>
#include <vector>

#include "async/executor.h"

namespace tidewell::test {

/// A main thread whose turns, time and background work a test drives step by step, all on the
/// test's own thread: nothing sleeps, and every order of events can be made to happen. What fails
/// is thrown to the test at the end of the turn.
class TestLoop final : public Executor {
 public:
    ~TestLoop() override { dropTasks(); }

    void post(Work turn) override { turns_.push_back(std::move(turn)); }
    void postAfter(Duration delay, Work turn) override {
        timers_.emplace(now_ + delay, std::move(turn));
    }
    void startInBackground(Work work) override { work_.push_back(std::move(work)); }

    void fail(std::exception_ptr failure) noexcept override { failure_ = std::move(failure); }

    /// How many background calls have been started and not yet run.
    std::size_t inBackground() const { return work_.size(); }

    void runTurn() {
        std::deque<Work> due;
        due.swap(turns_);
        for (auto& turn : due) turn();
        if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
    }
    /// Runs turns until none is due.
    void runTurns() {
        while (!turns_.empty()) runTurn();
    }
    /// Runs the background call at the given place among those under way, and all that follows
    /// from its end.
    void finish(std::size_t index = 0) {
        auto work = std::move(work_.at(index));
        work_.erase(work_.begin() + static_cast<std::ptrdiff_t>(index));
        work();
        work = nullptr;
        runTurns();
    }
    /// Runs turns and background calls, oldest first, until nothing is left but timers.
    void runAll() {
        for (runTurns(); !work_.empty();) finish();
    }
    void advance(Duration by) {
        const auto end = now_ + by;
        while (!timers_.empty() && timers_.begin()->first <= end) {
            now_ = timers_.begin()->first;
            turns_.push_back(std::move(timers_.extract(timers_.begin()).mapped()));
            runTurns();
        }
        now_ = end;
    }

 private:
    std::deque<Work> turns_;
    std::vector<Work> work_;
    std::multimap<Duration, Work> timers_;
    Duration now_{};
    std::exception_ptr failure_;
};

}  // namespace tidewell::test
