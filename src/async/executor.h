#pragma once

#include <chrono>
#include <coroutine>
#include <exception>
#include <functional>
#include <memory>
#include <set>
#include <utility>

#include "async/task.h"

namespace tidewell {

using Duration = std::chrono::steady_clock::duration;

/// Where work runs: turns of the main thread, and threads beside it. One exists at a time; it
/// stands for the process's main thread from its construction to its destruction.
class Executor {
 public:
    using Work = std::function<void()>;

    Executor();
    Executor(const Executor&) = delete;
    Executor& operator=(const Executor&) = delete;
    virtual ~Executor();

    static Executor& main();

    /// Runs `turn` on the main thread in a later turn, in the order posted. Any thread.
    virtual void post(Work turn) = 0;
    /// The same, once `delay` has passed. Main thread only.
    virtual void postAfter(Duration delay, Work turn) = 0;
    /// Runs `work` on a thread of its own, so that nothing starves behind work that hangs; where
    /// the machine gives no thread, on the main thread in a later turn. Main thread only.
    virtual void startInBackground(Work work) = 0;
    /// Takes the exception that left a spawned task, a turn or a background call. Any thread.
    virtual void fail(std::exception_ptr failure) noexcept = 0;

 protected:
    /// Drops every spawned task that has not ended. Called by a derived class's destructor, while
    /// what those tasks refer to is still there.
    void dropTasks();

 private:
    friend class DetachedTask;
    std::set<void*> liveTasks_;
};

/// Starts `task` in a later turn of the main thread and lets it run on its own; its frame belongs
/// to the executor.
void spawn(Task<> task);

/// The same for an operation of `object`, which is kept alive until the operation has ended.
template <class Object, class... Parameters, class... Arguments>
void spawn(std::shared_ptr<Object> object, Task<> (Object::*operation)(Parameters...),
           Arguments... arguments) {
    constexpr auto run = [](std::shared_ptr<Object> kept, Task<> (Object::*call)(Parameters...),
                            Arguments... given) -> Task<> {
        co_await (kept.get()->*call)(std::move(given)...);
    };
    spawn(run(std::move(object), operation, std::move(arguments)...));
}

/// `co_await sleepFor(2s)` goes on in a turn after the delay has passed.
class [[nodiscard]] sleepFor {
 public:
    explicit sleepFor(Duration delay) : delay_(delay) {}
    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> caller) {
        Executor::main().postAfter(delay_, caller);
    }
    void await_resume() const noexcept {}

 private:
    Duration delay_;
};

}  // namespace tidewell
