#include "platform/posix/work_pool.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace tidewell::posix {

void Job::run(std::unique_ptr<Share> first) {
    WorkPool::Lock lock(pool_.mutex_);
    if (pool_.atWork_ == 0) pool_.width_ = pool_.fullWidth_;
    ++openShares_;
    pool_.workOn({this, std::move(first)}, Role::caller, lock);
    while (openShares_ > 0) {
        if (const auto ready = pool_.firstReady(this); ready != pool_.waiting_.end()) {
            pool_.workOn(pool_.take(ready), Role::caller, lock);
        } else {
            changed_.wait(lock);
        }
    }
    if (failure_) std::rethrow_exception(failure_);
}

void Job::offer(std::unique_ptr<Share> share) {
    const WorkPool::Lock lock(pool_.mutex_);
    if (!failure_) pool_.add(*this, share);
}

bool Job::leaveForLater(std::unique_ptr<Share>& share) {
    const WorkPool::Lock lock(pool_.mutex_);
    if (atWork_ <= 1) return false;
    isOneAtATime_ = true;
    pool_.add(*this, share);
    return true;
}

void WorkPool::add(Job& job, std::unique_ptr<Share>& share) {
    waiting_.push_back({&job, std::move(share)});
    ++job.openShares_;
    const bool isHelperMissing = std::cmp_less(idleHelpers_, waiting_.size()) && helpers_ < width_;
    if (hasRoom() && isHelperMissing && job.isReady()) startHelper();
    updateAppetite();
    helpWanted_.notify_one();
    job.changed_.notify_one();
}

void WorkPool::help() {
    Lock lock(mutex_);
    for (;;) {
        ++idleHelpers_;
        helpWanted_.wait(lock, [this] { return hasRoom() && firstReady() != waiting_.end(); });
        --idleHelpers_;
        workOn(take(firstReady()), Role::helper, lock);
    }
}

void WorkPool::startHelper() {
    try {
        std::thread([this] { help(); }).detach();
        ++helpers_;
    } catch (...) {
        // No more threads are to be had. What nobody takes is left to the job's own caller.
        width_ = std::max(1, helpers_);
    }
}

/// Unlocks while it works.
void WorkPool::workOn(Waiting waiting, Role role, Lock& lock) {
    auto& job = *waiting.job;
    ++atWork_;
    ++job.atWork_;
    updateAppetite();
    lock.unlock();
    std::exception_ptr failure;
    try {
        waiting.share->work(role);
    } catch (...) {
        failure = std::current_exception();
    }
    waiting.share = nullptr;
    lock.lock();
    --atWork_;
    --job.atWork_;
    if (failure && !job.failure_) job.failure_ = failure;
    if (job.failure_) dropSharesOf(job);
    updateAppetite();
    if (!waiting_.empty()) helpWanted_.notify_one();
    --job.openShares_;
    job.changed_.notify_one();
}

WorkPool::Waiting WorkPool::take(Place place) {
    auto waiting = std::move(*place);
    waiting_.erase(place);
    return waiting;
}

WorkPool::Place WorkPool::firstReady(const Job* ofJob) {
    return std::ranges::find_if(waiting_, [&](const Waiting& waiting) {
        return (!ofJob || waiting.job == ofJob) && waiting.job->isReady();
    });
}

void WorkPool::dropSharesOf(Job& job) {
    const auto dropped =
        std::erase_if(waiting_, [&](const Waiting& waiting) { return waiting.job == &job; });
    job.openShares_ -= static_cast<int>(dropped);
}

void WorkPool::updateAppetite() {
    const int room = width_ - atWork_;
    const int waiting = static_cast<int>(waiting_.size());
    appetite_.store(room < 0 ? room : std::max(0, room - waiting), std::memory_order_relaxed);
}

}  // namespace tidewell::posix
