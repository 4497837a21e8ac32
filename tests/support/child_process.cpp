#include "support/child_process.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

namespace tidewell::test {

ChildProcess::ChildProcess(const std::function<bool()>& work) {
    const auto owner = ::getpid();
    id_ = ::fork();
    if (id_ < 0) throw std::runtime_error("cannot fork");
    if (id_ > 0) return;
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::_exit(::getppid() == owner && work() ? 0 : 1);
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
