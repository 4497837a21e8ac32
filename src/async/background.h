#pragma once

#include <coroutine>
#include <cstdlib>
#include <deque>
#include <exception>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include "async/executor.h"

namespace tidewell {

/// Background calls in flight together. Their values come back one at a time, on the main thread,
/// in the order in which the calls ended; an exception that ended a call is thrown where its value
/// would have come. The group has no width: its caller bounds it. It may go away while calls still
/// run: their values are dropped.
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
        auto& executor = Executor::main();
        // Its room is there before the call begins, which may use up the memory.
        auto ending = std::make_shared<Ending>();
        executor.startInBackground([&executor, state = state_, ending = std::move(ending),
                                    work = std::move(work)]() mutable {
            try {
                ending->value.emplace(work());
            } catch (...) {
                ending->failure = std::current_exception();
            }
            executor.post([state = std::move(state), ending = std::move(ending)] {
                state->finished.push_back(ending);
                if (auto waiting = std::exchange(state->waiting, nullptr)) waiting.resume();
            });
        });
        ++running_;
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
                const auto ending = std::move(group->state_->finished.front());
                group->state_->finished.pop_front();
                if (ending->failure) std::rethrow_exception(ending->failure);
                return std::move(*ending->value);
            }
        };
        return Awaiter{this};
    }

 private:
    struct Ending {
        std::optional<Value> value;
        std::exception_ptr failure;
    };
    struct State {
        std::deque<std::shared_ptr<Ending>> finished;
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

/// Awaits the call; `otherwise` stands for the value of one that an exception ended: an act for
/// which there was no memory is an act that failed, and is told like one.
template <class Work, class Value>
Task<Value> valueOr(background<Work>& call, Value otherwise) {
    try {
        auto value = co_await call;
        co_return value;
    } catch (...) {
    }
    co_return otherwise;
}

}  // namespace tidewell
