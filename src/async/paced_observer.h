#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "async/executor.h"
#include "async/observable.h"

namespace tidewell {

/// Tells of changes at the pace at which they can be drawn: of the first in the next turn, and then
/// at most once in an interval while changes go on. Whoever is told sees all that changed until
/// then, and no change goes untold. Main thread only.
class PacedObserver {
 public:
    PacedObserver(Duration interval, std::function<void()> changed)
        : pace_(std::make_shared<Pace>(interval, std::move(changed))) {}

    void watch(Signal& willChange) {
        subscriptions_.push_back(willChange.subscribe([pace = pace_] { Pace::request(pace); }));
    }

 private:
    struct Pace {
        Pace(Duration wantedInterval, std::function<void()> wantedCall)
            : interval(wantedInterval), changed(std::move(wantedCall)) {}

        static void request(const std::shared_ptr<Pace>& pace) {
            if (std::exchange(pace->isRequested, true) || pace->isResting) return;
            Executor::main().post([weak = std::weak_ptr(pace)] { tell(weak); });
        }
        static void tell(const std::weak_ptr<Pace>& weak) {
            const auto pace = weak.lock();
            if (!pace) return;
            pace->isRequested = false;
            pace->isResting = true;
            Executor::main().postAfter(pace->interval, [weak] { endRest(weak); });
            pace->changed();
        }
        static void endRest(const std::weak_ptr<Pace>& weak) {
            const auto pace = weak.lock();
            if (!pace) return;
            pace->isResting = false;
            if (pace->isRequested) tell(weak);
        }

        const Duration interval;
        const std::function<void()> changed;
        bool isRequested = false;
        bool isResting = false;  ///< told less than an interval ago
    };

    // Before the subscriptions, which end first; a call in hand holds it for itself.
    std::shared_ptr<Pace> pace_;
    std::vector<Subscription> subscriptions_;
};

}  // namespace tidewell
