#pragma once

namespace tidewell {

/// While it lives, a first Ctrl-C, a request to end, the end of the terminal or of whoever reads
/// the output only raises a flag, so that a removal can end behind the item in hand. A second
/// Ctrl-C or request ends the program at once. What the caller has had ignored stays ignored. One
/// at a time.
class InterruptionWatch {
 public:
    InterruptionWatch();
    InterruptionWatch(const InterruptionWatch&) = delete;
    InterruptionWatch& operator=(const InterruptionWatch&) = delete;
    ~InterruptionWatch();

    bool wasInterrupted() const;
};

}  // namespace tidewell
