#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "advisor/advisor_service.h"
#include "async/observable.h"
#include "async/task.h"

namespace tidewell {

/// What a scan of the Advisor found, less what its actions have removed since.
struct Findings {
    std::vector<SimRuntime> runtimes;
    std::int64_t unavailableSims = 0;
    std::int64_t snapshotCount = 0;
    ByteCount dockerBytes = 0;
};

/// The Advisor tool: gathers its findings, carries out its three actions one by one, and owns the
/// sentences about their outcome. Main thread only; the service's calls run in the background, with
/// no time limit. No action rescans: each takes what it removed out of the findings.
class AdvisorViewModel {
 public:
    enum class Phase { idle, scanning, list };
    enum class ActionOutcome { succeeded, failed };

    /// The `busyAction` of the actions that concern no single runtime.
    static constexpr std::string_view unavailableSimsAction = "unavailable-sims";
    static constexpr std::string_view snapshotsAction = "snapshots";

    explicit AdvisorViewModel(const Host& host) : system{host.system}, service_(host) {}

    const System system;  ///< of the machine that is advised on

    Signal willChange;
    Published<Phase> phase{willChange, Phase::idle};
    Published<Findings> findings{willChange};
    /// The action under way: one of the two above, or the id of the runtime being deleted.
    Published<std::optional<std::string>> busyAction{willChange};
    /// The outcome of the last action, until the next scan or the next outcome.
    Published<std::optional<std::string>> lastMessage{willChange};
    /// How that action ended; absent before the first.
    std::optional<ActionOutcome> lastOutcome() const { return lastOutcome_; }

    bool hasFindings() const;
    /// The sizes of the runtimes alone: nobody knows the snapshots', and Docker's is reclaimed in
    /// Docker itself.
    ByteCount reclaimableBytes() const;

    /// Does nothing during a scan. The old findings stay until the new ones are there.
    Task<> scan();
    Task<> deleteRuntime(SimRuntime runtime);
    Task<> removeUnavailableSims();
    Task<> thinSnapshots();

 private:
    const AdvisorService service_;
    std::optional<ActionOutcome> lastOutcome_;
};

}  // namespace tidewell
