#pragma once

#include <coroutine>
#include <cstdlib>
#include <deque>
#include <memory>
#include <type_traits>
#include <utility>

#include "async/executor.h"

namespace tidewell {

/// Background calls in flight together. Their values come back one at a time, on the main thread,
/// in the order in which the calls ended. The group has no width: its caller bounds it. It may go
/// away while calls still run: their values are dropped.
template <class Value>
class BackgroundGroup {
 public:
    BackgroundGroup() = default;
    BackgroundGroup(const BackgroundGroup&) = delete;
    BackgroundGroup& operator=(const BackgroundGroup&) = delete;
    ~BackgroundGroup() { state_->waiting = nullptr; }

    /// Runs `work` away from the main thread. It owns copies of all it needs.
    template <class Work>
    void start(Work work) {
        ++running_;
        auto& executor = Executor::main();
        executor.startInBackground([&executor, state = state_, work = std::move(work)]() mutable {
            auto value = std::make_shared<Value>(work());
            executor.post([state = std::move(state), value = std::move(value)] {
                state->finished.push_back(std::move(*value));
                if (auto waiting = std::exchange(state->waiting, nullptr)) waiting.resume();
            });
        });
    }

    /// How many calls have been started whose value has not been taken.
    int running() const { return running_; }

    /// `co_await group.next()`: the value of the call that ends next. Some call must be running,
    /// and nobody else may be waiting; a wait that cannot end ends the process.
    auto next() {
        struct Awaiter {
            BackgroundGroup* group;
            bool await_ready() const noexcept { return !group->state_->finished.empty(); }
            void await_suspend(std::coroutine_handle<> caller) {
                if (group->running_ == 0 || group->state_->waiting) std::abort();
                group->state_->waiting = caller;
            }
            Value await_resume() {
                --group->running_;
                Value value = std::move(group->state_->finished.front());
                group->state_->finished.pop_front();
                return value;
            }
        };
        return Awaiter{this};
    }

 private:
    struct State {
        std::deque<Value> finished;
        std::coroutine_handle<> waiting;
    };
    std::shared_ptr<State> state_ = std::make_shared<State>();
    int running_ = 0;
};

/// One call in the background, which starts at once:
///
///     auto measuring = background([target] { return measure(target); });
///     auto item = co_await measuring;
///
/// It has a name of its own because g++ 12 destroys a lambda's captures twice when the lambda
/// stands in a co_await expression; awaiting it unnamed does not compile.
template <class Work>
class [[nodiscard]] background {
 public:
    explicit background(Work work) { group_.start(std::move(work)); }
    auto operator co_await() & { return group_.next(); }
    void operator co_await() && = delete;

 private:
    BackgroundGroup<std::invoke_result_t<Work&>> group_;
};

}  // namespace tidewell
