#include "advisor/advisor_view_model.h"

#include <algorithm>
#include <utility>

#include "advisor/linux/linux_findings.h"
#include "async/background.h"
#include "kit/count_text.h"
#include "platform/sum.h"

namespace tidewell {

ByteCount AdvisorViewModel::reclaimableBytes() const {
    return sumOf(listed(findings()),
                 [](const Finding& finding) { return finding.sizeBytes.value_or(0); });
}

Task<> AdvisorViewModel::scan() {
    if (phase() == Phase::scanning) co_return;
    const auto before = phase();
    phase = Phase::scanning;
    lastMessage = std::nullopt;
    try {
        auto gathering = background([host = host_] { return gatherFindings(host); });
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
        background([host = host_, runtime] { return AdvisorService(host).deleteRuntime(runtime); });
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
    busyAction = std::string(unavailableSimsFinding);
    auto removing =
        background([host = host_] { return AdvisorService(host).removeUnavailableSims(); });
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
    busyAction = std::string(snapshotsFinding);
    auto thinning = background([host = host_] { return AdvisorService(host).thinSnapshots(); });
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

Task<> AdvisorViewModel::run(std::string findingId) {
    if (findingId == unavailableSimsFinding) {
        co_await removeUnavailableSims();
        co_return;
    }
    if (findingId == snapshotsFinding) {
        co_await thinSnapshots();
        co_return;
    }
    const auto found = findings().probed;
    const auto finding = std::ranges::find(found, findingId, &Finding::id);
    if (finding == found.end() || finding->action != FindingAction::run) co_return;
    const auto chosen = *finding;
    busyAction = chosen.id;
    auto running = background([host = host_, chosen] { return carryOut(host, chosen); });
    const bool done = co_await valueOr(running, false);
    busyAction = std::nullopt;
    lastOutcome_ = done ? ActionOutcome::succeeded : ActionOutcome::failed;
    if (!done) {
        lastMessage = "That didn't work. Try it in a terminal: " + chosen.command;
        co_return;
    }
    lastMessage = chosen.outcome;
    std::erase_if(findings.mutate().probed,
                  [&chosen](const Finding& each) { return each.id == chosen.id; });
}

}  // namespace tidewell
