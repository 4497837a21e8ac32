#pragma once

#include <atomic>
#include <memory>
#include <utility>

namespace tidewell {

/// Whether work that is under way is still wanted; as std::stop_token, which not every library has
/// yet. One that comes from no source is never stopped. Any thread.
class StopToken {
 public:
    StopToken() = default;

    bool stop_requested() const {
        return isStopped_ && isStopped_->load(std::memory_order_relaxed);
    }

 private:
    friend class StopSource;
    explicit StopToken(std::shared_ptr<const std::atomic<bool>> isStopped)
        : isStopped_(std::move(isStopped)) {}

    std::shared_ptr<const std::atomic<bool>> isStopped_;
};

class StopSource {
 public:
    StopToken get_token() const { return StopToken(isStopped_); }
    void request_stop() { isStopped_->store(true, std::memory_order_relaxed); }
    bool stop_requested() const { return isStopped_->load(std::memory_order_relaxed); }

 private:
    std::shared_ptr<std::atomic<bool>> isStopped_ = std::make_shared<std::atomic<bool>>(false);
};

}  // namespace tidewell
