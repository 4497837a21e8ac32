#pragma once

namespace tidewell::cli {

/// While it lives, the first Ctrl-C only raises a flag, so that a removal can end behind the item
/// in hand; a second one ends the program at once. One at a time.
class InterruptionWatch {
 public:
    InterruptionWatch();
    InterruptionWatch(const InterruptionWatch&) = delete;
    InterruptionWatch& operator=(const InterruptionWatch&) = delete;
    ~InterruptionWatch();

    bool wasInterrupted() const;
};

}  // namespace tidewell::cli
