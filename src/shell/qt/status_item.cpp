#include "shell/qt/status_item.h"

#include <QtGui/qcursor.h>

#include "kit/qt/text.h"
#include "shell/qt/status_image.h"
#include "shell/screens/menu_bar_content.h"

namespace tidewell {

StatusItem::StatusItem(Application& application)
    : sums_(std::make_shared<LiveSums>(UserDefaults(application.host.configurationDirectory))),
      storedSums_(application.host.configurationDirectory, [this] { sums_->read(); }),
      popover_(application, sums_),
      icon_(statusImage()) {
    icon_.setToolTip(toText(statusItemTitle));
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         const bool isClick = reason == QSystemTrayIcon::Trigger ||
                                              reason == QSystemTrayIcon::Context;
                         if (isClick) togglePopover();
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
