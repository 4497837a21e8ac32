#include "support/running_program.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

namespace tidewell::test {

namespace fs = std::filesystem;

RunningProgram::RunningProgram(const std::string& executable) {
    fs::create_directories(fs::path(executable).parent_path());
    fs::copy_file("/bin/sleep", executable, fs::copy_options::overwrite_existing);
    std::string name = "sleep";
    std::string seconds = "600";
    char* arguments[] = {name.data(), seconds.data(), nullptr};
    // It returns once the new program has taken the process over.
    if (::posix_spawn(&processId_, executable.c_str(), nullptr, nullptr, arguments, environ) != 0)
        throw std::runtime_error("cannot start " + executable);
}

RunningProgram::~RunningProgram() {
    ::kill(processId_, SIGKILL);
    ::waitpid(processId_, nullptr, 0);
}

}  // namespace tidewell::test
