#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtQml/qqml.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

namespace tidewell {

/// How a window is drawn, found out at its first frame.
enum class Drawing {
    unknown,
    byGraphicsCard,
    byProcessor,  ///< each frame of a window costs the processor most of 0.1 s
};

/// Whether things may move, in QML `Motion.isAllowed` and so on at any item.
class Motion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("holds at an item")
    QML_ATTACHED(tidewell::Motion)
    /// Whether what moves by itself may do so: the item's window is seen, is the active one and is
    /// drawn by a graphics card, and the user does not want less motion. Before the first frame:
    /// no.
    Q_PROPERTY(bool isAllowed READ isAllowed NOTIFY changed)
    /// Whether a passage from one state to the next is to be seen: no if the user wants less motion
    /// or the processor draws.
    Q_PROPERTY(bool hasPassages READ hasPassages NOTIFY changed)
    /// Whether it is worth keeping pictures of what does not change.
    Q_PROPERTY(bool isDrawnByProcessor READ isDrawnByProcessor NOTIFY changed)

 public:
    explicit Motion(QObject* holder);
    static Motion* qmlAttachedProperties(QObject* holder) { return new Motion(holder); }

    /// What the user's settings say; holds for all windows.
    static void setReduced(bool isReduced);
    static bool isReduced();

    bool isAllowed() const;
    bool hasPassages() const;
    bool isDrawnByProcessor() const;

 signals:
    void changed();

 private:
    void follow(QQuickWindow* window);

    QPointer<class WindowDrawing> window_;
    QMetaObject::Connection following_;
};

}  // namespace tidewell
