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
    const auto shared = std::make_shared<Work>(std::move(work));
    if (startThread(shared) == Started::yes) return;
    post([this, shared] {
        // One that was in the way may have ended by now.
        if (startThread(shared) == Started::no) attempt(*shared);
    });
}

MainLoop::Started MainLoop::startThread(std::shared_ptr<Work> work) {
    countWorkers(+1);
    try {
        std::thread([this, work = std::move(work)]() mutable {
            attempt(*work);
            work = nullptr;  // its captures go before the loop may
            countWorkers(-1);
        }).detach();
        return Started::yes;
    } catch (const std::exception&) {
        countWorkers(-1);
        return Started::no;
    }
}

void MainLoop::countWorkers(int change) {
    const std::lock_guard lock(mutex_);
    workers_ += change;
    changed_.notify_all();
}

void MainLoop::attempt(Work& work) noexcept {
    try {
        work();
    } catch (...) {
        fail(std::current_exception());
    }
}

void MainLoop::fail(std::exception_ptr failure) noexcept {
    {
        const std::lock_guard lock(mutex_);
        if (!failure_) failure_ = std::move(failure);
        changed_.notify_all();
    }
    wake_();
}

std::exception_ptr MainLoop::takeFailure() {
    const std::lock_guard lock(mutex_);
    return std::exchange(failure_, nullptr);
}

void MainLoop::runTurn() {
    std::deque<Work> due;
    {
        const std::lock_guard lock(mutex_);
        due.swap(turns_);
    }
    while (!timers_.empty() && timers_.begin()->first <= Clock::now())
        due.push_back(std::move(timers_.extract(timers_.begin()).mapped()));
    for (auto& turn : due) attempt(turn);
    if (const auto failure = takeFailure()) failed_(failure);
}

std::optional<Duration> MainLoop::timeToNextTurn() {
    const std::lock_guard lock(mutex_);
    if (!turns_.empty() || failure_) return Duration::zero();
    if (timers_.empty()) return std::nullopt;
    return std::max(Duration::zero(), timers_.begin()->first - Clock::now());
}

void MainLoop::waitForTurn() {
    std::unique_lock lock(mutex_);
    const auto due = [this] { return !turns_.empty() || failure_; };
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
