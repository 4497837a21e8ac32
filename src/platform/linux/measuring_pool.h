#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/disk_usage.h"
#include "platform/linux/folder_work.h"

namespace tidewell::linux_system {

/// One caller's measure, shared by the threads that work on it.
struct Measure {
    std::shared_ptr<const posix::Descriptor> start;  ///< the folder that it began with

    // What follows is guarded by the pool's mutex.
    DiskUsage found;
    int openShares = 0;  ///< waiting to be worked on, or worked on
    std::condition_variable ended;
};

/// The threads that measure. A caller works on its own measure; helpers join in as long as no more
/// than `width` threads are at work, callers included, and step back when further callers come. So
/// callers at once share the machine instead of crowding it.
///
/// Work is handed over on demand only: a thread at work looks at the pool's appetite, one relaxed
/// load, a folder at a time. Helpers are started when there is a first share for them, and stay:
/// a pool lives as long as the process.
class MeasuringPool {
 public:
    static MeasuringPool& make(int width) { return *new MeasuringPool(width); }
    MeasuringPool(const MeasuringPool&) = delete;
    MeasuringPool& operator=(const MeasuringPool&) = delete;
    ~MeasuringPool() = delete;

    /// Measures all regular files below an open folder. Blocks until the end.
    DiskUsage measure(posix::Descriptor folder);

    /// How many more shares would be taken up at once. Below zero: so many threads too many are at
    /// work.
    int appetite() const { return appetite_.load(std::memory_order_relaxed); }

    /// Leaves a share of the measure to whoever takes it first.
    void offer(Measure& measure, FolderWork work);

    /// How many folders one thread may hold open, besides the one that it reads.
    std::size_t foldersHeldByThread() const { return foldersHeldByThread_; }

 private:
    struct Share {
        Measure* measure;
        FolderWork work;
    };
    using Lock = std::unique_lock<std::mutex>;
    enum class Role { caller, helper };

    explicit MeasuringPool(int width);

    void help();
    void startHelper();
    void workOn(Share share, Role role, Lock& lock);
    std::optional<Share> takeShareOf(const Measure& measure);
    bool hasRoom() const { return atWork_ < width_; }
    void updateAppetite();

    const std::size_t foldersHeldByThread_;
    std::mutex mutex_;
    std::condition_variable helpWanted_;
    std::deque<Share> shares_;  ///< offered and not yet taken
    int width_;
    int atWork_ = 0;
    int helpers_ = 0;
    int idleHelpers_ = 0;
    std::atomic<int> appetite_;
};

}  // namespace tidewell::linux_system
