#include "platform/termination.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <thread>
#include <utility>

namespace tidewell {

namespace {

constexpr std::array endings = {SIGTERM, SIGINT, SIGHUP};

std::array<int, 2> tube = {-1, -1};

/// What a signal may do is little: the rest happens behind the other end.
void tell(int) {
    const int before = errno;
    for (const int ending : endings) std::signal(ending, SIG_DFL);
    const char word = 0;
    (void)!write(tube[1], &word, 1);
    errno = before;
}

bool layTube() {
    if (pipe(tube.data()) != 0) return false;
    for (const int end : tube) fcntl(end, F_SETFD, FD_CLOEXEC);
    return true;
}

void listen(const std::function<void()>& asked) {
    char word = 0;
    ssize_t got = 0;
    do got = read(tube[0], &word, 1);
    while (got < 0 && errno == EINTR);
    if (got == 1) asked();
}

}  // namespace

void hearTermination(std::function<void()> asked) {
    if (!layTube()) return;
    try {
        std::thread([asked = std::move(asked)] { listen(asked); }).detach();
    } catch (const std::system_error&) {
        return;
    }
    for (const int ending : endings) std::signal(ending, tell);
}

void outliveForbiddenWrites() {
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace tidewell
