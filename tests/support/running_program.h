#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "support/child_process.h"
#include "support/sample_machine.h"

namespace tidewell::test {

enum class OnRequestToEnd { end, ignore };

/// A process that does nothing and whose executable lies at the given path, where it is put. It
/// runs once this is made, and ends as a ChildProcess does.
class RunningProgram {
 public:
    explicit RunningProgram(const std::string& executable,
                            OnRequestToEnd answer = OnRequestToEnd::end);

    int processId() const { return process_->id(); }

    /// Returns once the process has ended by itself. It stays in the system's list as one that has
    /// ended and whose starter has taken no note of it.
    void waitForEnd() const;
    void kill() { process_->kill(); }

 private:
    std::optional<ChildProcess> process_;
};

/// Where an application's executable lies: ".../Paint.app/Contents/MacOS/Paint".
std::string executableOf(const SampleMachine& machine, std::string_view application);

}  // namespace tidewell::test
