#include "shell/qt/qt_main_loop.h"

#include <chrono>

namespace tidewell {

QtMainLoop::QtMainLoop() : loop_([this] { wake(); }) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &QtMainLoop::runTurn);
}

void QtMainLoop::wake() {
    if (isAwake_.exchange(true)) return;
    QMetaObject::invokeMethod(this, &QtMainLoop::runTurn, Qt::QueuedConnection);
}

void QtMainLoop::runTurn() {
    isAwake_ = false;  // first, so that what is posted from here on brings another turn
    loop_.runTurn();
    sleepUntilNextTurn();
}

void QtMainLoop::sleepUntilNextTurn() {
    timer_.stop();
    if (const auto time = loop_.timeToNextTurn())
        timer_.start(std::chrono::ceil<std::chrono::milliseconds>(*time));
}

}  // namespace tidewell
