#include "shell/qt/qt_main_loop.h"

#include <chrono>
#include <iostream>

#include "async/failure.h"

namespace tidewell {

namespace {

/// The window stays: what failed has gone back to where it can be begun again.
void tell(const std::exception_ptr& failure) {
    std::cerr << "tidewell: something went wrong inside the program: " << failureText(failure)
              << std::endl;
}

}  // namespace

QtMainLoop::QtMainLoop() : loop_([this] { wake(); }, tell) {
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
