#pragma once

#include <string>
#include <string_view>

#include "support/sample_machine.h"

namespace tidewell::test {

enum class OnRequestToEnd { end, ignore };

/// A process that does nothing and whose executable lies at the given path, where it is put. It
/// runs once this is made, and is killed and reaped when its owner goes away.
class RunningProgram {
 public:
    explicit RunningProgram(const std::string& executable,
                            OnRequestToEnd answer = OnRequestToEnd::end);
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram() { kill(); }

    int processId() const { return processId_; }

    /// Returns once the process has ended by itself. It stays in the system's list as one that has
    /// ended and whose starter has taken no note of it.
    void waitForEnd() const;
    void kill();

 private:
    int processId_ = -1;
};

/// Where an application's executable lies: ".../Paint.app/Contents/MacOS/Paint".
std::string executableOf(const SampleMachine& machine, std::string_view application);

}  // namespace tidewell::test
