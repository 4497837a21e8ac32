#include "support/running_program.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <utility>

#include "platform/path_text.h"

namespace tidewell::test {

namespace fs = std::filesystem;

namespace {

/// An executable that runs already cannot be written to.
void putProgram(const std::string& executable) {
    fs::create_directories(fs::path(executable).parent_path());
    const fs::path idler = "/bin/sleep";
    if (!fs::exists(executable) || fs::file_size(executable) != fs::file_size(idler))
        fs::copy_file(idler, executable, fs::copy_options::overwrite_existing);
    fs::permissions(executable, fs::perms(0755));
}

}  // namespace

RunningProgram::RunningProgram(const std::string& executable, OnRequestToEnd answer) {
    putProgram(executable);
    std::string name = "sleep";
    std::string seconds = "600";
    char* arguments[] = {name.data(), seconds.data(), nullptr};
    // A program goes on ignoring what its starter ignores.
    const auto previous = ::signal(SIGTERM, answer == OnRequestToEnd::ignore ? SIG_IGN : SIG_DFL);
    // It returns once the new program has taken the process over.
    const auto error =
        ::posix_spawn(&processId_, executable.c_str(), nullptr, nullptr, arguments, environ);
    ::signal(SIGTERM, previous);
    if (error != 0) throw std::runtime_error("cannot start " + executable);
}

void RunningProgram::waitForEnd() const {
    siginfo_t ended;
    ::waitid(P_PID, static_cast<id_t>(processId_), &ended, WEXITED | WNOWAIT);
}

void RunningProgram::kill() {
    if (processId_ < 0) return;
    ::kill(processId_, SIGKILL);
    ::waitpid(std::exchange(processId_, -1), nullptr, 0);
}

std::string executableOf(const SampleMachine& machine, std::string_view application) {
    return machine.path(application) + "/Contents/MacOS/" +
           std::string(nameWithoutExtension(application));
}

}  // namespace tidewell::test
