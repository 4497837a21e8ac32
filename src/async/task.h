#pragma once

#include <coroutine>
#include <cstdlib>
#include <exception>
#include <optional>
#include <utility>

namespace tidewell {

/// An awaitable operation: `Task<> startScan();` runs when somebody awaits it, once, and resumes
/// that caller when it ends. What a machine may answer never travels as an exception in this
/// program; one that leaves a task (no memory left) reaches whoever awaits it, and the executor if
/// nobody does. A second await ends the process.
///
/// Two habits keep g++ 12 from destroying things twice: what is awaited has a name whenever it
/// holds a lambda or braces, and a coroutine is a named function, or a lambda that captures
/// nothing. tests/lint/co_await.pl enforces the first.
template <class Value = void>
class Task;

namespace detail {

class TaskPromiseBase {
 public:
    struct ResumeCaller {
        bool await_ready() noexcept { return false; }
        template <class Promise>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<Promise> ended) noexcept {
            return ended.promise().caller;
        }
        void await_resume() noexcept {}
    };

    std::suspend_always initial_suspend() noexcept { return {}; }
    ResumeCaller final_suspend() noexcept { return {}; }
    void unhandled_exception() noexcept { failure_ = std::current_exception(); }

    std::coroutine_handle<> caller = std::noop_coroutine();

 protected:
    void throwFailure() const {
        if (failure_) std::rethrow_exception(failure_);
    }

 private:
    std::exception_ptr failure_;
};

template <class Value>
class TaskPromise : public TaskPromiseBase {
 public:
    Task<Value> get_return_object();
    template <class Result>
    void return_value(Result&& result) {
        value_.emplace(std::forward<Result>(result));
    }
    Value takeValue() {
        throwFailure();
        return std::move(*value_);
    }

 private:
    std::optional<Value> value_;
};

template <>
class TaskPromise<void> : public TaskPromiseBase {
 public:
    Task<void> get_return_object();
    void return_void() {}
    void takeValue() const { throwFailure(); }
};

}  // namespace detail

template <class Value>
class [[nodiscard]] Task {
 public:
    using promise_type = detail::TaskPromise<Value>;
    using Handle = std::coroutine_handle<promise_type>;

    explicit Task(Handle handle) : handle_(handle) {}
    Task(Task&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Task& operator=(Task&&) = delete;
    ~Task() {
        if (handle_) handle_.destroy();
    }

    bool await_ready() const noexcept { return false; }
    std::coroutine_handle<> await_suspend(std::coroutine_handle<> caller) noexcept {
        if (!handle_ || handle_.done()) std::abort();
        handle_.promise().caller = caller;
        return handle_;
    }
    Value await_resume() { return handle_.promise().takeValue(); }

 private:
    Handle handle_;
};

namespace detail {

template <class Value>
Task<Value> TaskPromise<Value>::get_return_object() {
    return Task<Value>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

inline Task<void> TaskPromise<void>::get_return_object() {
    return Task<void>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

}  // namespace detail

}  // namespace tidewell
