#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "advisor/advisor_view_model.h"
#include "apps/apps_view_model.h"
#include "async/observable.h"
#include "cleanup/cleanup_view_model.h"
#include "cleanup/live_sums.h"
#include "deepscan/deep_scan_view_model.h"
#include "deepscan/disk_map_view_model.h"
#include "devmode/dev_mode_view_model.h"
#include "performance/performance_view_model.h"
#include "platform/user_defaults.h"
#include "shell/application.h"
#include "shell/mode.h"
#include "shell/permissions_model.h"
#include "shell/smart_scan_controller.h"
#include "shell/theme_engine.h"

namespace tidewell {

/// Whether the film runs once the first-run screen has been left.
enum class Intro { play, skip };

/// The root of the main window: owns the view models of all tools, which so keep their results
/// while the user is elsewhere, and says which section is shown and what lies over it. It outlasts
/// the closing of the window. Nothing scans by itself. Main thread only; held by shared_ptr.
class ContentView : public std::enable_shared_from_this<ContentView> {
 public:
    /// The application outlives it.
    explicit ContentView(Application& application);

    /// Fired before each change of the published fields below, though not of the models'.
    Signal willChange;

    const std::shared_ptr<CleanupViewModel> cleanupModel;
    const std::shared_ptr<AppsViewModel> appsModel;
    const std::shared_ptr<DeepScanViewModel> deepScanModel;
    const std::shared_ptr<DiskMapViewModel> diskMapModel;
    const std::shared_ptr<AdvisorViewModel> advisorModel;
    const std::shared_ptr<PerformanceViewModel> performanceModel;
    const std::shared_ptr<DevModeViewModel> devModeModel;
    const std::shared_ptr<SmartScanController> smartScan;
    const std::shared_ptr<PermissionsModel> permissions;
    const std::shared_ptr<ThemeEngine> theme;
    const std::shared_ptr<LiveSums> sums;

    Published<Mode> mode{willChange, Mode::home};
    /// Whether the first-run screen was finished, now or in an earlier run of the program.
    Published<bool> hasOnboarded{willChange, false};
    Published<bool> playingIntro{willChange, false};
    /// The opacity that what lies below the film has, or is on its way to.
    Published<double> introHomeOpacity{willChange, 1.0};
    Published<bool> showAbout{willChange, false};

    /// The sections of the sidebar: Dev Mode only on a developer's machine.
    std::vector<Mode> sidebarModes() const;
    const Host& host() const { return application_.host; }
    const Workspace& workspace() const { return application_.workspace; }

    /// To be called each time the window comes into sight: takes what the bridge has noted.
    void appear();
    /// Home comes into sight, and a smart scan begins where none is under way. Wishes of one turn
    /// start one.
    void scanEverything();
    /// A URL from outside; one that is not known is ignored.
    void openUrl(std::string_view url);

    void finishOnboarding(Intro intro);
    /// The film is about to end: what lies below it begins to show.
    void revealHome() { introHomeOpacity = 1.0; }
    /// The film has gone.
    void endIntro();

 private:
    void openSection(const std::optional<std::string>& name);
    void refreshWhenCleaned();

    Application& application_;
    UserDefaults defaults_;
    bool isStarting_ = false;  ///< a smart scan has been started in this very turn
    CleanupViewModel::Phase lastCleanupPhase_ = CleanupViewModel::Phase::idle;
    Subscription cleanupObserver_;
    std::array<NotificationCenter::Registration, 3> registrations_;
};

}  // namespace tidewell
