#pragma once

#include <string>

namespace tidewell::test {

/// A process that does nothing and whose executable lies at the given path, where it is put. It
/// runs once this is made, and is killed and reaped when its owner goes away.
class RunningProgram {
 public:
    explicit RunningProgram(const std::string& executable);
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    int processId() const { return processId_; }

 private:
    int processId_ = -1;
};

}  // namespace tidewell::test
