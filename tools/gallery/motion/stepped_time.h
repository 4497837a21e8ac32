#pragma once

#include <QtCore/qabstractanimation.h>
#include <QtCore/qcoreapplication.h>
#include <QtCore/qthread.h>

#include <algorithm>

namespace tidewell::gallery {

/// The time that animations go by, which goes on only when it is told to. Windows have to be drawn
/// in the main thread.
class SteppedTime : public QAnimationDriver {
 public:
    SteppedTime() { install(); }

    qint64 elapsed() const override { return now_ - begin_; }

    /// Goes on for so many milliseconds, as a screen does that shows 60 frames a second; with a
    /// film no faster than the clock.
    void pass(qint64 milliseconds, bool hasFilm) {
        const auto end = now_ + milliseconds;
        while (now_ < end) {
            now_ = std::min(now_ + 16, end);
            if (isRunning()) advance();
            QCoreApplication::processEvents();
            if (hasFilm) QThread::msleep(12);
        }
    }

 protected:
    void start() override {
        begin_ = now_;
        QAnimationDriver::start();
    }

 private:
    qint64 now_ = 0;
    qint64 begin_ = 0;
};

}  // namespace tidewell::gallery
