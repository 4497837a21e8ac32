#pragma once

#include <QtCore/qobject.h>
#include <QtQuick/qquickwindow.h>

#include "kit/qt/motion.h"

namespace tidewell {

/// What a window's items need to know of it before they move. Lives as long as the window.
class WindowDrawing : public QObject {
    Q_OBJECT

 public:
    /// The one of this window, made at the first call.
    static WindowDrawing* of(QQuickWindow* window);

    bool isSeenAndActive() const;
    Drawing drawing() const { return drawing_; }
    /// Has everything move as it does on such a machine, whatever draws here.
    void assume(Drawing drawing);

 signals:
    void changed();

 private:
    explicit WindowDrawing(QQuickWindow* window);
    void look();

    QQuickWindow* const window_;
    Drawing drawing_ = Drawing::unknown;
};

}  // namespace tidewell
