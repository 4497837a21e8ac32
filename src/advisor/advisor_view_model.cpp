#include "advisor/advisor_view_model.h"

#include <utility>

#include "async/background.h"
#include "kit/count_text.h"
#include "platform/sum.h"

namespace tidewell {

namespace {

Findings gatherFindings(const AdvisorService& service) {
    return {
        .runtimes = service.simRuntimes(),
        .unavailableSims = service.unavailableSimCount(),
        .snapshotCount = service.localSnapshotCount(),
        .dockerBytes = service.dockerBytes(),
    };
}

}  // namespace

bool AdvisorViewModel::hasFindings() const {
    const auto& found = findings();
    return !found.runtimes.empty() || found.unavailableSims > 0 || found.snapshotCount > 0 ||
           found.dockerBytes > 0;
}

ByteCount AdvisorViewModel::reclaimableBytes() const {
    return sumOf(findings().runtimes, [](const auto& runtime) { return runtime.sizeBytes; });
}

Task<> AdvisorViewModel::scan() {
    if (phase() == Phase::scanning) co_return;
    const auto before = phase();
    phase = Phase::scanning;
    lastMessage = std::nullopt;
    try {
        auto gathering = background([service = service_] { return gatherFindings(service); });
        auto found = co_await gathering;
        findings = std::move(found);
        phase = Phase::list;
    } catch (...) {
        phase = before;
        throw;
    }
}

Task<> AdvisorViewModel::deleteRuntime(SimRuntime runtime) {
    busyAction = runtime.id;
    auto deleting =
        background([service = service_, runtime] { return service.deleteRuntime(runtime); });
    const bool deleted = co_await valueOr(deleting, false);
    busyAction = std::nullopt;
    lastOutcome_ = deleted ? ActionOutcome::succeeded : ActionOutcome::failed;
    if (!deleted) {
        lastMessage =
            "Couldn't delete " + runtime.name + ". Try Xcode ▸ Settings ▸ Components instead.";
        co_return;
    }
    lastMessage =
        "Deleted " + runtime.name + ". If the space doesn't show up, a restart releases it.";
    std::erase_if(findings.mutate().runtimes,
                  [&](const SimRuntime& each) { return each.id == runtime.id; });
}

Task<> AdvisorViewModel::removeUnavailableSims() {
    busyAction = std::string(unavailableSimsAction);
    auto removing = background([service = service_] { return service.removeUnavailableSims(); });
    const bool removed = co_await valueOr(removing, false);
    busyAction = std::nullopt;
    lastOutcome_ = removed ? ActionOutcome::succeeded : ActionOutcome::failed;
    if (!removed) {
        lastMessage = "Couldn't remove unavailable simulators.";
        co_return;
    }
    lastMessage = "Removed " + countText(findings().unavailableSims, "unavailable simulator") + ".";
    findings.mutate().unavailableSims = 0;
}

Task<> AdvisorViewModel::thinSnapshots() {
    busyAction = std::string(snapshotsAction);
    auto thinning = background([service = service_] { return service.thinSnapshots(); });
    const bool thinned = co_await valueOr(thinning, false);
    busyAction = std::nullopt;
    lastOutcome_ = thinned ? ActionOutcome::succeeded : ActionOutcome::failed;
    if (!thinned) {
        lastMessage = "Couldn't thin local snapshots.";
        co_return;
    }
    lastMessage = "macOS is purging snapshots now. Space shows up over the next few minutes.";
    findings.mutate().snapshotCount = 0;
}

}  // namespace tidewell
