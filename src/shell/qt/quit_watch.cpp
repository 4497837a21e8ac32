#include "shell/qt/quit_watch.h"

#include <QtCore/qcoreevent.h>
#include <QtCore/qpointer.h>
#include <QtGui/qguiapplication.h>

#include "platform/termination.h"

namespace tidewell {

QuitWatch::QuitWatch(Quitting& quitting) : quitting_(quitting) {
    qGuiApp->installEventFilter(this);
    // Whoever asks waits until this returns.
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &QuitWatch::awaitItemInHand,
            Qt::DirectConnection);
    hearTermination([watch = QPointer(this)] {
        QMetaObject::invokeMethod(
            qGuiApp,
            [watch] {
                if (watch) watch->quitting_.request();
            },
            Qt::QueuedConnection);
    });
}

bool QuitWatch::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver != qGuiApp || event->type() != QEvent::Quit) return false;
    quitting_.request();
    return true;
}

void QuitWatch::awaitItemInHand() {
    quitting_.stopCleaning();
    while (quitting_.isCleaning()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace tidewell
