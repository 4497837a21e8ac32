#include "shell/qt/timed_application.h"

#include <algorithm>
#include <cstdio>

namespace tidewell {

namespace {

/// One frame at 60 Hz.
constexpr double longestSmooth = 16;

double milliseconds(qint64 nanoseconds) {
    return static_cast<double>(nanoseconds) / 1e6;
}

}  // namespace

TimedApplication::TimedApplication(int& count, char** words) : QApplication(count, words) {
    sinceStart_.start();
}

void TimedApplication::watchFirstFrame(QQuickWindow& window) {
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, this,
        [this] {
            std::fprintf(stderr, "timings: first frame after %.0f ms\n",
                         milliseconds(sinceStart_.nsecsElapsed()));
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void TimedApplication::sumUp() const {
    std::fprintf(stderr, "timings: %d events, longest %.1f ms, %d above %.0f ms\n", events_,
                 milliseconds(longest_), longEvents_, longestSmooth);
}

bool TimedApplication::notify(QObject* receiver, QEvent* event) {
    if (depth_ > 0) return QApplication::notify(receiver, event);
    // Neither may be there any more afterwards.
    const auto* kind = receiver->metaObject()->className();
    const auto type = event->type();
    QElapsedTimer clock;
    clock.start();
    ++depth_;
    const bool isTaken = QApplication::notify(receiver, event);
    --depth_;
    take(clock.nsecsElapsed(), kind, type);
    return isTaken;
}

void TimedApplication::take(qint64 nanoseconds, const char* receiver, QEvent::Type type) {
    ++events_;
    longest_ = std::max(longest_, nanoseconds);
    if (milliseconds(nanoseconds) <= longestSmooth) return;
    ++longEvents_;
    std::fprintf(stderr, "timings: %8.0f ms: event %d of %s took %.1f ms\n",
                 milliseconds(sinceStart_.nsecsElapsed()), type, receiver,
                 milliseconds(nanoseconds));
}

}  // namespace tidewell
