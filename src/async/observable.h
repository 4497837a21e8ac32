#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "async/executor.h"

namespace tidewell {

/// Keeps a subscription alive: letting go of it ends the subscription.
using Subscription = std::shared_ptr<const std::function<void()>>;

/// Tells its subscribers, in the order in which they came, at once and on the caller's thread,
/// which is the main thread throughout this program.
class Signal {
 public:
    Signal() = default;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;

    [[nodiscard]] Subscription subscribe(std::function<void()> observer) {
        auto subscription = std::make_shared<const std::function<void()>>(std::move(observer));
        observers_.push_back(subscription);
        return subscription;
    }

    void fire() {
        std::erase_if(observers_, [](const auto& observer) { return observer.expired(); });
        const auto observers = observers_;  // an observer may subscribe
        for (const auto& observer : observers)
            if (auto call = observer.lock()) (*call)();
    }

 private:
    std::vector<std::weak_ptr<const std::function<void()>>> observers_;
};

/// A field that fires its object's signal before each change: `phase = Phase::review`,
/// `phase()`, `items.mutate().clear()`. Main thread only.
template <class Value>
class Published {
 public:
    explicit Published(Signal& willChange, Value value = {})
        : willChange_(willChange), value_(std::move(value)) {}
    Published(const Published&) = delete;

    const Value& operator()() const { return value_; }
    void operator=(Value value) {
        willChange_.fire();
        value_ = std::move(value);
    }
    Value& mutate() {
        willChange_.fire();
        return value_;
    }

 private:
    Signal& willChange_;
    Value value_;
};

/// Calls `changed` once in a later turn however often `willChange` fires before it.
[[nodiscard]] inline Subscription onChanged(Signal& willChange, std::function<void()> changed) {
    auto observer = std::make_shared<const std::function<void()>>(std::move(changed));
    auto pending = std::make_shared<bool>(false);
    return willChange.subscribe([observer, pending] {
        if (std::exchange(*pending, true)) return;
        Executor::main().post([weak = std::weak_ptr(observer), pending] {
            *pending = false;
            if (auto call = weak.lock()) (*call)();
        });
    });
}

}  // namespace tidewell
