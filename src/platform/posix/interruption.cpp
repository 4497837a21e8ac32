#include "platform/interruption.h"

#include <array>
#include <csignal>

namespace tidewell {

namespace {

constexpr std::array interruptions = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};

volatile std::sig_atomic_t interrupted = 0;

/// The end of a terminal is told twice, that of a reader at every write.
void raiseFlag(int signal) {
    interrupted = 1;
    const bool isAboutOthers = signal == SIGHUP || signal == SIGPIPE;
    std::signal(signal, isAboutOthers ? SIG_IGN : SIG_DFL);
}

void handleAll(void (*handler)(int)) {
    for (const int signal : interruptions)
        if (std::signal(signal, handler) == SIG_IGN) std::signal(signal, SIG_IGN);
}

}  // namespace

InterruptionWatch::InterruptionWatch() {
    interrupted = 0;
    handleAll(raiseFlag);
}

InterruptionWatch::~InterruptionWatch() {
    handleAll(SIG_DFL);
}

bool InterruptionWatch::wasInterrupted() const {
    return interrupted != 0;
}

}  // namespace tidewell
