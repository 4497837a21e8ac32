#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "async/observable.h"
#include "cleanup/cleaning_session.h"

namespace tidewell {

/// How the program ends while something is being cleaned: the item in hand is brought to its end,
/// no other begins, and by then what has gone is in the sums. Whoever asks a second time is not
/// kept waiting. Main thread only.
class Quitting {
 public:
    /// `end` ends the program, at once.
    Quitting(std::vector<std::shared_ptr<CleaningSession>> sessions, std::function<void()> end);

    /// Somebody wants the program to end.
    void request();

    /// No further item begins.
    void stopCleaning();
    bool isCleaning() const;

 private:
    const std::vector<std::shared_ptr<CleaningSession>> sessions_;
    const std::function<void()> end_;
    std::vector<Subscription> observers_;  ///< from the first request on
};

}  // namespace tidewell
