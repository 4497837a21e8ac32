#pragma once

#include <QtWidgets/qmenu.h>
#include <QtWidgets/qsystemtrayicon.h>

#include "shell/application.h"
#include "shell/qt/popover.h"

namespace tidewell {

/// The program's place in the desktop's bar, for as long as it runs: a click opens the popover, and
/// another closes it. A desktop without such a bar shows nothing.
class StatusItem {
 public:
    /// The application outlives it.
    explicit StatusItem(Application& application);

    /// Whether the desktop has a bar that shows it, now.
    static bool isShown() { return QSystemTrayIcon::isSystemTrayAvailable(); }

    void togglePopover();
    Popover& popover() { return popover_; }
    QMenu& menu() { return menu_; }

 private:
    QRect place() const;

    Popover popover_;
    QMenu menu_;  ///< for the other button, and for bars that know menus alone
    QSystemTrayIcon icon_;
};

}  // namespace tidewell
