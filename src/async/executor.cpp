#include "async/executor.h"

#include <cstdlib>

namespace tidewell {

namespace {

Executor* current = nullptr;

struct NextTurn {
    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> caller) const { Executor::main().post(caller); }
    void await_resume() const noexcept {}
};

}  // namespace

/// A coroutine that nobody awaits. Its frame registers with the executor, which destroys it at
/// quit if it has not ended by then.
class DetachedTask {
 public:
    struct promise_type {
        promise_type() { Executor::main().liveTasks_.insert(address()); }
        ~promise_type() { Executor::main().liveTasks_.erase(address()); }
        void* address() {
            return std::coroutine_handle<promise_type>::from_promise(*this).address();
        }
        DetachedTask get_return_object() { return {}; }
        std::suspend_never initial_suspend() noexcept { return {}; }
        std::suspend_never final_suspend() noexcept { return {}; }
        void return_void() {}
        void unhandled_exception() noexcept { Executor::main().fail(std::current_exception()); }
    };
};

namespace {

DetachedTask runDetached(Task<> task) {
    const NextTurn nextTurn;
    co_await nextTurn;
    co_await task;
}

}  // namespace

Executor::Executor() {
    if (current) std::abort();
    current = this;
}

Executor::~Executor() {
    current = nullptr;
}

Executor& Executor::main() {
    if (!current) std::abort();
    return *current;
}

void Executor::dropTasks() {
    while (!liveTasks_.empty())
        std::coroutine_handle<>::from_address(*liveTasks_.begin()).destroy();
}

void spawn(Task<> task) {
    runDetached(std::move(task));
}

}  // namespace tidewell
