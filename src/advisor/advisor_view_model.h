#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "advisor/advisor_findings.h"
#include "async/observable.h"
#include "async/task.h"

namespace tidewell {

/// The Advisor tool: gathers its findings, carries out its actions one by one, and owns the
/// sentences about their outcome. Main thread only; the service's calls run in the background, with
/// no time limit. No action rescans: each takes what it removed out of the findings.
class AdvisorViewModel {
 public:
    enum class Phase { idle, scanning, list };
    enum class ActionOutcome { succeeded, failed };

    explicit AdvisorViewModel(const Host& host) : system{host.system}, host_(host) {}

    const System system;  ///< of the machine that is advised on

    Signal willChange;
    Published<Phase> phase{willChange, Phase::idle};
    Published<Findings> findings{willChange};
    /// The action under way: the id of the finding, or of the runtime being deleted.
    Published<std::optional<std::string>> busyAction{willChange};
    /// The outcome of the last action, until the next scan or the next outcome.
    Published<std::optional<std::string>> lastMessage{willChange};
    /// How that action ended; absent before the first.
    std::optional<ActionOutcome> lastOutcome() const { return lastOutcome_; }

    bool hasFindings() const { return !listed(findings()).empty(); }
    /// The sizes of all findings of which one is known.
    ByteCount reclaimableBytes() const;

    /// Does nothing during a scan. The old findings stay until the new ones are there.
    Task<> scan();
    Task<> deleteRuntime(SimRuntime runtime);
    Task<> removeUnavailableSims();
    Task<> thinSnapshots();
    /// Runs what a finding says, by its id; nothing for one that runs nothing, or is gone.
    Task<> run(std::string findingId);

 private:
    const Host host_;
    std::optional<ActionOutcome> lastOutcome_;
};

}  // namespace tidewell
