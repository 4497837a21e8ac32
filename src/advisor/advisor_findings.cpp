#include "advisor/advisor_findings.h"

#include "advisor/linux/linux_findings.h"
#include "kit/byte_text.h"
#include "kit/count_text.h"
#include "platform/sum.h"

namespace tidewell {

namespace {

Finding runtimes(const std::vector<SimRuntime>& found) {
    return {
        .id = std::string(runtimesFinding),
        .symbol = "iphone.gen3",
        .title = "iOS Simulator runtimes",
        .detail =
            "A runtime is just the copy of iOS your Simulator boots. Your code and projects "
            "aren't in it. Xcode re-downloads it if you ever need it again. Usually the "
            "biggest hidden chunk of “System Data”.",
        .sizeBytes = sumOf(found, [](const auto& runtime) { return runtime.sizeBytes; }),
    };
}

Finding unavailableSims(std::int64_t count) {
    return {
        .id = std::string(unavailableSimsFinding),
        .symbol = "iphone.slash",
        .title = "Unavailable simulators",
        .detail = countText(count, "simulator") + " whose runtime is gone. Dead weight.",
        .sizeBytes = std::nullopt,
        .action = FindingAction::run,
        .actionLabel = "Remove All",
    };
}

Finding snapshots(std::int64_t count) {
    return {
        .id = std::string(snapshotsFinding),
        .symbol = "clock.arrow.circlepath",
        .title = "Time Machine local snapshots",
        .detail =
            countText(count, "local snapshot") +
            " counted as “System Data”. macOS decides what's safe to purge. Your real backups "
            "on other drives stay untouched.",
        .sizeBytes = std::nullopt,
        .action = FindingAction::run,
        .actionLabel = "Thin Snapshots",
    };
}

/// Reclaimed in Docker itself, so that its size is no part of what the Advisor can free.
Finding dockerDisk(ByteCount bytes) {
    return {
        .id = "docker-disk",
        .symbol = "shippingbox",
        .title = "Docker virtual disk",
        .detail = "Docker keeps all images and containers in one " + byteText(bytes) +
                  " virtual disk. Reclaim space safely from Docker itself: open Docker Desktop ▸ "
                  "Troubleshoot ▸ Clean / Purge data, or run “docker system prune” in Terminal.",
        .sizeBytes = std::nullopt,
        .severity = FindingSeverity::notice,
    };
}

}  // namespace

Findings gatherFindings(const Host& host) {
    switch (host.system) {
        case System::macOS: {
            const AdvisorService service(host);
            return {
                .runtimes = service.simRuntimes(),
                .unavailableSims = service.unavailableSimCount(),
                .snapshotCount = service.localSnapshotCount(),
                .dockerBytes = service.dockerBytes(),
            };
        }
        case System::linux:
            return {.runtimes = {}, .probed = linuxFindings(host)};
    }
    return {};
}

std::vector<Finding> listed(const Findings& found) {
    std::vector<Finding> list;
    if (!found.runtimes.empty()) list.push_back(runtimes(found.runtimes));
    if (found.unavailableSims >= 1) list.push_back(unavailableSims(found.unavailableSims));
    if (found.snapshotCount >= 1) list.push_back(snapshots(found.snapshotCount));
    if (found.dockerBytes >= 1) list.push_back(dockerDisk(found.dockerBytes));
    list.insert(list.end(), found.probed.begin(), found.probed.end());
    return list;
}

}  // namespace tidewell
