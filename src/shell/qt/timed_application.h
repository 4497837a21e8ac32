#pragma once

#include <QtCore/qelapsedtimer.h>
#include <QtQuick/qquickwindow.h>
#include <QtWidgets/qapplication.h>

namespace tidewell {

/// An application that watches how long the main thread is busy at a stretch, for whoever looks for
/// what makes the window stutter. Says on standard error when the first frame was seen and which
/// events took longer than a frame, and sums up at the end. Times are in milliseconds, on the clock
/// of the wall; the program's own start before this object is made is not in them.
class TimedApplication final : public QApplication {
 public:
    TimedApplication(int& count, char** words);

    /// From now on waits for the window's first frame.
    void watchFirstFrame(QQuickWindow& window);
    /// How many events there were, and the longest.
    void sumUp() const;

    bool notify(QObject* receiver, QEvent* event) override;

 private:
    void take(qint64 nanoseconds, const char* receiver, QEvent::Type type);

    QElapsedTimer sinceStart_;
    int depth_ = 0;  ///< an event may send others; the outermost is what others wait for
    int events_ = 0;
    int longEvents_ = 0;
    qint64 longest_ = 0;  ///< nanoseconds
};

}  // namespace tidewell
