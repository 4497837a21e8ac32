#include "async/main_loop.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace tidewell {

void MainLoop::end() {
    dropTasks();
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return workers_ == 0; });
}

void MainLoop::post(Work turn) {
    {
        const std::lock_guard lock(mutex_);
        turns_.push_back(std::move(turn));
        changed_.notify_all();
    }
    wake_();
}

void MainLoop::postAfter(Duration delay, Work turn) {
    timers_.emplace(Clock::now() + delay, std::move(turn));
    wake_();
}

void MainLoop::startInBackground(Work work) {
    {
        const std::lock_guard lock(mutex_);
        ++workers_;
    }
    std::thread([this, work = std::move(work)]() mutable {
        work();
        work = nullptr;  // its captures go before the loop may
        const std::lock_guard lock(mutex_);
        --workers_;
        changed_.notify_all();
    }).detach();
}

void MainLoop::runTurn() {
    std::deque<Work> due;
    {
        const std::lock_guard lock(mutex_);
        due.swap(turns_);
    }
    while (!timers_.empty() && timers_.begin()->first <= Clock::now())
        due.push_back(std::move(timers_.extract(timers_.begin()).mapped()));
    for (auto& turn : due) turn();
}

std::optional<Duration> MainLoop::timeToNextTurn() {
    const std::lock_guard lock(mutex_);
    if (!turns_.empty()) return Duration::zero();
    if (timers_.empty()) return std::nullopt;
    return std::max(Duration::zero(), timers_.begin()->first - Clock::now());
}

void MainLoop::waitForTurn() {
    std::unique_lock lock(mutex_);
    const auto due = [this] { return !turns_.empty(); };
    if (timers_.empty()) {
        changed_.wait(lock, due);
    } else {
        changed_.wait_until(lock, timers_.begin()->first, due);
    }
}

void RunLoop::run() {
    while (!quitting_) {
        waitForTurn();
        runTurn();
    }
    quitting_ = false;
}

}  // namespace tidewell
