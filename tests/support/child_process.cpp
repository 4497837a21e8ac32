#include "support/child_process.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

namespace tidewell::test {

ChildProcess::ChildProcess(const std::function<bool()>& work) : id_(::fork()) {
    if (id_ < 0) throw std::runtime_error("cannot fork");
    if (id_ == 0) ::_exit(work() ? 0 : 1);
}

bool ChildProcess::succeeded() {
    int status = 0;
    if (::waitpid(std::exchange(id_, -1), &status, 0) < 0) return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void ChildProcess::kill() {
    if (id_ < 0) return;
    ::kill(id_, SIGKILL);
    ::waitpid(std::exchange(id_, -1), nullptr, 0);
}

}  // namespace tidewell::test
