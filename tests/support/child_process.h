#pragma once

#include <functional>

namespace tidewell::test {

/// A copy of the test's own process that runs `work` and ends at once with 0 if that said true,
/// with 1 otherwise. It is killed and reaped when its owner goes away, and killed when the thread
/// that made it ends in whatever way: no test leaves one behind that holds its output open.
class ChildProcess {
 public:
    explicit ChildProcess(const std::function<bool()>& work);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() { kill(); }

    /// Waits for its end; whether `work` ran to its end and said true.
    bool succeeded();
    int id() const { return id_; }
    /// Ends it in the midst of whatever it does.
    void kill();

 private:
    int id_ = -1;
};

}  // namespace tidewell::test
