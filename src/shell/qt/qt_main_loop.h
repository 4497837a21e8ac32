#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qtimer.h>

#include <atomic>

#include "async/main_loop.h"

namespace tidewell {

/// Runs the program's turns inside the toolkit's loop, on the thread that makes it, which is the
/// main thread from then on.
class QtMainLoop final : public QObject {
    Q_OBJECT

 public:
    QtMainLoop();

 private:
    void wake();
    void runTurn();
    void sleepUntilNextTurn();

    QTimer timer_;
    std::atomic<bool> isAwake_ = false;  ///< a turn is already on its way
    GuestLoop loop_;
};

}  // namespace tidewell
