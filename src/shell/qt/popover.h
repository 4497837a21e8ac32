#pragma once

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qpointer.h>
#include <QtCore/qrect.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickwindow.h>

#include <memory>

#include "shell/application.h"

namespace tidewell {

/// The small window of the status item. It is made anew at each opening, and closes as soon as
/// another window is the active one. It works with the main window closed.
class Popover {
 public:
    /// The application outlives it.
    explicit Popover(Application& application);
    Popover(const Popover&) = delete;
    Popover& operator=(const Popover&) = delete;
    ~Popover();

    /// Shows it beside an item of the desktop.
    void open(const QRect& item);
    void close();
    bool isOpen() const { return !window_.isNull(); }
    /// Whether it closed by itself a moment ago: a click that comes now did that.
    bool hasJustLeft() const;

    /// Null while it is closed.
    QQuickWindow* window() const { return window_; }

 private:
    QQuickWindow* makeWindow();
    void leaveWhenInactive(QQuickWindow& window);

    Application& application_;
    std::unique_ptr<QQmlEngine> engine_;  ///< from the first opening on
    QPointer<QQuickWindow> window_;
    QPointer<QQuickWindow> leaving_;  ///< closed, and gone in a later turn
    QElapsedTimer sinceLeft_;
};

}  // namespace tidewell
