#pragma once

#include <chrono>

namespace tidewell {

/// How long what has just come under the pointer, or under the keyboard, takes no press that cannot
/// be taken back: the press was meant for what stood there before. Longer than a double click, and
/// than it takes to see that something has moved.
inline constexpr std::chrono::milliseconds settlingTime{600};

/// Whether something has stood still for that long. Main thread.
class Settling {
 public:
    void moved() { lastMove_ = Clock::now(); }
    bool isOver() const { return Clock::now() - lastMove_ >= settlingTime; }

 private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point lastMove_{};
};

}  // namespace tidewell
