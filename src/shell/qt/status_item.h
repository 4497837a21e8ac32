#pragma once

#include <QtWidgets/qsystemtrayicon.h>

#include <memory>

#include "cleanup/live_sums.h"
#include "shell/application.h"
#include "shell/qt/folder_watch.h"
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

 private:
    QRect place() const;

    const std::shared_ptr<LiveSums> sums_;
    /// The window's tools, and a command line beside them, store what they freed.
    FolderWatch storedSums_;
    Popover popover_;
    QSystemTrayIcon icon_;
};

}  // namespace tidewell
