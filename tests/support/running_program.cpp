#include "support/running_program.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

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
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("cannot make a pipe");
    process_.emplace([&] {
        // A program goes on ignoring what its starter ignores.
        ::signal(SIGTERM, answer == OnRequestToEnd::ignore ? SIG_IGN : SIG_DFL);
        ::execl(executable.c_str(), "sleep", "600", nullptr);
        return ::write(ends[1], "!", 1) < 0;
    });
    ::close(ends[1]);
    // Nothing comes, and no writer is left, once the program has taken the process over.
    char failure = 0;
    const auto count = ::read(ends[0], &failure, 1);
    ::close(ends[0]);
    if (count != 0) throw std::runtime_error("cannot start " + executable);
}

void RunningProgram::waitForEnd() const {
    siginfo_t ended;
    ::waitid(P_PID, static_cast<id_t>(processId()), &ended, WEXITED | WNOWAIT);
}

std::string executableOf(const SampleMachine& machine, std::string_view application) {
    return machine.path(application) + "/Contents/MacOS/" +
           std::string(nameWithoutExtension(application));
}

}  // namespace tidewell::test
