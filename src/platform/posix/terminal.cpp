#include "platform/terminal.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "platform/environment.h"

namespace tidewell {

namespace {

constexpr int usualWidth = 100;

int descriptorOf(StandardStream stream) {
    return stream == StandardStream::output ? STDOUT_FILENO : STDERR_FILENO;
}

}  // namespace

void keepStandardStreamsApart() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(descriptor, F_GETFD) < 0)  // open() gives the lowest number that is free
            (void)::open("/dev/null", O_RDONLY);
}

bool isTerminal(StandardStream stream) {
    return ::isatty(descriptorOf(stream)) == 1;
}

int terminalWidth(StandardStream stream) {
    struct winsize size;
    if (::ioctl(descriptorOf(stream), TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return usualWidth;
    return size.ws_col;
}

bool mayColour(StandardStream stream) {
    return isTerminal(stream) && environmentValue("NO_COLOR").empty() &&
           environmentValue("TERM") != "dumb";
}

}  // namespace tidewell
