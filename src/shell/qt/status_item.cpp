#include "shell/qt/status_item.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qcursor.h>

#include "kit/qt/text.h"
#include "kit/words.h"
#include "shell/qt/status_image.h"
#include "shell/screens/menu_bar_content.h"

namespace tidewell {

StatusItem::StatusItem(Application& application) : popover_(application), icon_(statusImage()) {
    menu_.addAction(toText(openFullAppLabel), [&application] { application.bridge.showWindow(); });
    menu_.addAction(toText(wordsOf(application.host.system).scanMachine),
                    [&application] { application.bridge.requestScan(); });
    menu_.addSeparator();
    menu_.addAction(toText(quitProgramLabel), [] { QCoreApplication::quit(); });
    icon_.setContextMenu(&menu_);
    icon_.setToolTip(toText(statusItemTitle));
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::Trigger) togglePopover();
                     });
    icon_.show();
}

void StatusItem::togglePopover() {
    if (popover_.isOpen()) return popover_.close();
    // The click that comes now has just closed it, for it made the bar the active window.
    if (popover_.hasJustLeft()) return;
    popover_.open(place());
}

QRect StatusItem::place() const {
    const auto known = icon_.geometry();
    // Not every bar tells; the click that brought us here was in it.
    return known.isEmpty() ? QRect(QCursor::pos(), QSize(1, 1)) : known;
}

}  // namespace tidewell
