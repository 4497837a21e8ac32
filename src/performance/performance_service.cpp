#include "performance/performance_service.h"

#include <algorithm>

namespace tidewell {

namespace {

ByteCount memoryOf(const RunningApplication& application) {
    if (application.processes.empty()) return physicalFootprint(application.process);
    ByteCount sum = 0;
    for (const auto& process : application.processes)
        sum = addSaturating(sum, physicalFootprint(process));
    return sum;
}

std::optional<std::int64_t> processCount(const RunningApplication& application) {
    const auto count = static_cast<std::int64_t>(application.processes.size());
    return count > 0 ? std::optional(count) : std::nullopt;
}

RunningApp runningApp(const RunningApplication& application) {
    return {.id = application.process.id,
            .name = application.name.value_or("App"),
            .bundleID = application.bundleIdentifier,
            .url = application.bundlePath,
            .iconFile = application.iconFile,
            .memoryBytes = memoryOf(application),
            .processCount = processCount(application),
            .process = application.process};
}

}  // namespace

std::vector<RunningApp> PerformanceService::runningApps() const {
    std::vector<RunningApp> apps;
    for (const auto& application : runningApplications(host_)) {
        const bool isRegular = application.activationPolicy == ActivationPolicy::regular;
        const bool isThisProgram = application.bundleIdentifier == host_.ownBundle.identifier;
        if (isRegular && !isThisProgram) apps.push_back(runningApp(application));
    }
    std::ranges::stable_sort(apps, std::ranges::greater{}, &RunningApp::memoryBytes);
    return apps;
}

}  // namespace tidewell
