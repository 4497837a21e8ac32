#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>

namespace tidewell::posix {

/// Whose thread does a share: the caller's who waits for the whole, or a helper's.
enum class Role { caller, helper };

class Job;

/// A part of a job, done by one thread.
class Share {
 public:
    Share() = default;
    Share(const Share&) = delete;
    Share& operator=(const Share&) = delete;
    virtual ~Share() = default;
    /// An exception fails the whole job.
    virtual void work(Role role) = 0;
};

/// Threads that do jobs which can be cut into shares. A caller works on its own job; helpers join
/// in as long as no more than `width` threads are at work, callers included. So callers at once
/// share the machine instead of crowding it.
///
/// Work is handed over on demand only: a thread at work looks at the appetite, one relaxed load,
/// every now and then. Helpers are started when there is a first share for them, and stay: a pool
/// lives as long as the process. Where no thread is to be had, the callers do all by themselves.
class WorkPool {
 public:
    static WorkPool& make(int width) { return *new WorkPool(width); }
    WorkPool(const WorkPool&) = delete;
    WorkPool& operator=(const WorkPool&) = delete;
    ~WorkPool() = delete;

    int width() const { return fullWidth_; }

 private:
    friend class Job;

    struct Waiting {
        Job* job;
        std::unique_ptr<Share> share;
    };
    using Lock = std::unique_lock<std::mutex>;
    using Place = std::deque<Waiting>::iterator;

    explicit WorkPool(int width) : fullWidth_(width), width_(width), appetite_(width) {}

    void help();
    void startHelper();
    void add(Job& job, std::unique_ptr<Share>& share);
    void workOn(Waiting waiting, Role role, Lock& lock);
    Waiting take(Place place);
    Place firstReady(const Job* ofJob = nullptr);
    bool hasRoom() const { return atWork_ < width_; }
    void dropSharesOf(Job& job);
    void updateAppetite();

    const int fullWidth_;
    std::mutex mutex_;
    std::condition_variable helpWanted_;
    std::deque<Waiting> waiting_;  ///< offered and not yet taken
    int width_;                    ///< less than the full width while no more threads are to be had
    int atWork_ = 0;
    int helpers_ = 0;
    int idleHelpers_ = 0;
    std::atomic<int> appetite_;
};

enum class Helpers { welcome, none };

/// What one caller has done.
class Job {
 public:
    Job(WorkPool& pool, Helpers helpers) : pool_(pool), helpers_(helpers) {}
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// Blocks until the share, and all that was offered from it, is done. Throws what one of them
    /// threw; the others are given up then.
    void run(std::unique_ptr<Share> first);

    // For use inside a share:

    /// How many more shares would be taken up at once. Below zero: so many threads too many are at
    /// work.
    int appetite() const {
        if (helpers_ == Helpers::none) return 0;
        return pool_.appetite_.load(std::memory_order_relaxed);
    }
    /// Leaves a share to whoever takes it first.
    void offer(std::unique_ptr<Share> share);
    /// For want of something that the other threads at work on the job hold: leaves the share for
    /// later, and from now on one is done at a time. False, and nothing changed, if no other is at
    /// work.
    bool leaveForLater(std::unique_ptr<Share>& share);

 private:
    friend class WorkPool;
    bool isReady() const { return !isOneAtATime_ || atWork_ == 0; }

    WorkPool& pool_;
    const Helpers helpers_;

    // What follows is guarded by the pool's mutex.
    int openShares_ = 0;  ///< waiting to be worked on, or worked on
    int atWork_ = 0;
    bool isOneAtATime_ = false;
    std::exception_ptr failure_;
    std::condition_variable changed_;
};

/// Does a job with helpers and, should that fail for want of memory or for anything else, once more
/// without. `attempt(Helpers)` may begin anew.
template <class Attempt>
auto withHelpersOrWithout(const Attempt& attempt) {
    try {
        return attempt(Helpers::welcome);
    } catch (...) {
        return attempt(Helpers::none);
    }
}

}  // namespace tidewell::posix
