#include "cli/interruption.h"

#include <csignal>

namespace tidewell::cli {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void raiseFlag(int) {
    interrupted = 1;
    std::signal(SIGINT, SIG_DFL);
}

}  // namespace

InterruptionWatch::InterruptionWatch() {
    interrupted = 0;
    std::signal(SIGINT, raiseFlag);
}

InterruptionWatch::~InterruptionWatch() {
    std::signal(SIGINT, SIG_DFL);
}

bool InterruptionWatch::wasInterrupted() const {
    return interrupted != 0;
}

}  // namespace tidewell::cli
