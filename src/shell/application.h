#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "async/observable.h"
#include "cleanup/live_sums.h"
#include "devmode/developer_machine.h"
#include "platform/host.h"
#include "platform/workspace.h"
#include "shell/app_bridge.h"
#include "shell/notification_center.h"

namespace tidewell {

/// What lives as long as the process: the window's root, the status item and its popover share it
/// and do not know each other. Main thread only.
class Application {
 public:
    /// `activate` brings the program before all others.
    Application(Host where, Workspace desktop, std::function<void()> activate)
        : host(std::move(where)),
          workspace(std::move(desktop)),
          isDeveloperMachine(tidewell::isDeveloperMachine(host)),
          bridge(notifications, std::move(activate)),
          sums(std::make_shared<LiveSums>(UserDefaults(host.configurationDirectory))) {}

    const Host host;
    const Workspace workspace;
    /// Looked at once: a place that appears later changes nothing until the next start.
    const bool isDeveloperMachine;
    NotificationCenter notifications;
    /// Fired whenever the program has come to the front.
    Signal didBecomeActive;
    AppBridge bridge;
    /// Read anew whenever the stored ones change.
    const std::shared_ptr<LiveSums> sums;
};

}  // namespace tidewell
