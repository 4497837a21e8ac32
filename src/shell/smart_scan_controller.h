#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "advisor/advisor_view_model.h"
#include "apps/apps_view_model.h"
#include "async/observable.h"
#include "async/task.h"
#include "cleanup/cleanup_view_model.h"
#include "deepscan/deep_scan_view_model.h"

namespace tidewell {

/// Scans everything with one call: runs the scans of four tools strictly one after the other, in
/// the very view models that the tools' own screens show. No scan is ever cancelled: a stop ends
/// the sequence, while the scan in hand fills its tool unobserved. Main thread only; held by
/// shared_ptr.
class SmartScanController : public std::enable_shared_from_this<SmartScanController> {
 public:
    enum class Phase { idle, clean, apps, deepScan, advisor, done };

    /// The tools in the order of their scans.
    enum class Tool { clean, apps, deepScan, advisor };
    static constexpr std::array allTools = {Tool::clean, Tool::apps, Tool::deepScan, Tool::advisor};

    SmartScanController(std::shared_ptr<CleanupViewModel> cleanupModel,
                        std::shared_ptr<AppsViewModel> appsModel,
                        std::shared_ptr<DeepScanViewModel> deepScanModel,
                        std::shared_ptr<AdvisorViewModel> advisorModel);

    /// Fired before each change here and in any of the four view models.
    Signal willChange;
    Published<Phase> phase{willChange, Phase::idle};
    /// Whether the user ended the last run.
    Published<bool> stopped{willChange, false};

    const std::shared_ptr<CleanupViewModel> cleanup;
    const std::shared_ptr<AppsViewModel> apps;
    const std::shared_ptr<DeepScanViewModel> deepScan;
    const std::shared_ptr<AdvisorViewModel> advisor;

    bool isRunning() const { return phase() != Phase::idle && phase() != Phase::done; }
    /// A scan of the Clean tool ends in its review; there is no list.
    bool cleanFinished() const;
    /// The tool whose scan the run is in; absent outside a run.
    std::optional<Tool> currentTool() const;
    /// The small line under the title of a running scan; empty outside a run.
    std::string detail() const;

    /// Starts a run in a later turn. Does nothing while one is under way, or while any of the tools
    /// scans or cleans by itself.
    void start();
    /// Ends the run under way, if there is one, at once.
    void stop();
    /// Back to the overview. Not to be called during a run.
    void reset() { phase = Phase::idle; }

 private:
    bool aToolIsBusy() const;
    void beginGeneration();
    bool isStale(std::int64_t generation) const { return generation != runID_; }
    Task<> run(std::int64_t generation);
    Task<> runTools(std::int64_t generation);

    /// The generation of the run. It only goes up, so that the task of a run that was stopped, or
    /// overtaken by a newer one, finds on waking that it is stale and ends.
    std::int64_t runID_ = 0;
    std::array<Subscription, allTools.size()> forwarders_;
};

}  // namespace tidewell
