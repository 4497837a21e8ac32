#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "apps/app_order.h"
#include "apps/app_scanner.h"
#include "async/observable.h"
#include "async/task.h"

namespace tidewell {

/// The state of the Apps tool: the applications that the last scan found, and the one uninstall
/// that may be under way. Main thread only; the slow work runs in the background. Nothing here
/// fails: what could not be moved stands in `lastResult`.
class AppsViewModel : public std::enable_shared_from_this<AppsViewModel> {
 public:
    enum class Phase { idle, scanning, list };

    explicit AppsViewModel(const Host& host);

    /// Fired before each change of what follows.
    Signal willChange;

    Published<Phase> phase{willChange, Phase::idle};
    /// As the last scan found them, less what was uninstalled since. The old ones stay during a
    /// scan.
    Published<std::vector<InstalledApp>> apps{willChange};
    /// Bundles read, divided by bundles found.
    Published<double> scanProgress{willChange, 0.0};
    Published<SortOrder> sortOrder{willChange, SortOrder::leastUsed};
    /// Waits for the user's word: confirmUninstall() carries it out, setting it to absent cancels.
    Published<std::optional<UninstallPlan>> pendingPlan{willChange};
    Published<bool> isBuildingPlan{willChange, false};
    /// The outcome of the last uninstall, until the next scan or until it is dismissed.
    Published<std::optional<UninstallResult>> lastResult{willChange};
    /// How it came to be undone, until the next one, the next scan, or until it is dismissed.
    Published<std::optional<PutBackResult>> lastPutBack{willChange};

    const AppScanner scanner;
    const System system;  ///< of the machine whose applications they are

    /// The applications in the order that the user chose.
    std::vector<InstalledApp> sortedApps() const;
    ByteCount totalAppBytes() const;

    /// Does nothing during a scan. Ends when the scan has ended.
    Task<> scan();
    /// Searches the application's leftovers and makes a plan of them, unless the application is on
    /// its way to the Trash by then.
    Task<> prepareUninstall(InstalledApp app);
    /// Turns round whether a leftover of the pending plan goes.
    void toggleLeftover(const std::string& path);
    /// Carries out the pending plan, if there is one.
    Task<> confirmUninstall();
    /// Undoes the last uninstall; does nothing without one, or while it is being undone. The
    /// application is listed again if its bundle is back.
    Task<> putBack();
    /// Forgets how the last uninstall ended.
    void dismissResult();

 private:
    std::optional<InstalledApp> lastUninstalled_;
    /// The ids of those that an uninstall is moving, or has moved since the last scan.
    std::set<std::string> leaving_;
};

}  // namespace tidewell
