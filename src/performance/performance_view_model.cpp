#include "performance/performance_view_model.h"

#include <algorithm>
#include <utility>

#include "async/background.h"
#include "platform/sum.h"

namespace tidewell {

namespace {

struct Probes {
    std::vector<RunningApp> apps;
    std::vector<LoginItem> loginItems;
    MemoryUsage memory;
};

Probes runAllProbes(const PerformanceService& service) {
    return {.apps = service.runningApps(),
            .loginItems = service.loginItems(),
            .memory = service.memoryUsage()};
}

Probes runLightProbes(const PerformanceService& service) {
    return {.apps = service.runningApps(), .loginItems = {}, .memory = service.memoryUsage()};
}

std::string quitMessage(const RunningApp& app, Termination termination) {
    if (termination == Termination::asked)
        return "Asked " + app.name + " to quit. Its memory frees as it closes.";
    return app.name + " wouldn't quit. It may have unsaved work open.";
}

}  // namespace

double PerformanceViewModel::memoryFraction() const {
    if (memoryTotal() < 1) return 0.0;
    const auto share = static_cast<double>(memoryUsed()) / static_cast<double>(memoryTotal());
    return std::clamp(share, 0.0, 1.0);
}

ByteCount PerformanceViewModel::totalAppMemory() const {
    return sumOf(apps(), [](const auto& app) { return app.memoryBytes; });
}

Task<> PerformanceViewModel::scan() {
    if (phase() == Phase::scanning) co_return;
    const auto before = phase();
    phase = Phase::scanning;
    busyPID = std::nullopt;
    lastMessage = std::nullopt;
    try {
        auto probing = background([probed = service] { return runAllProbes(probed); });
        auto found = co_await probing;
        apps = std::move(found.apps);
        loginItems = std::move(found.loginItems);
        memoryUsed = found.memory.used;
        memoryTotal = found.memory.total;
        phase = Phase::list;
    } catch (...) {
        phase = before;
        throw;
    }
}

Termination PerformanceViewModel::quit(const RunningApp& app) {
    const auto termination = terminate(app.process);
    if (termination == Termination::alreadyEnded) return termination;
    busyPID = app.id;
    lastMessage = quitMessage(app, termination);
    spawn(shared_from_this(), &PerformanceViewModel::refreshAfterQuit);
    return termination;
}

Task<> PerformanceViewModel::refreshAfterQuit() {
    co_await sleepFor(timeToClose);
    try {
        auto probing = background([probed = service] { return runLightProbes(probed); });
        auto found = co_await probing;
        apps = std::move(found.apps);
        memoryUsed = found.memory.used;
        memoryTotal = found.memory.total;
        busyPID = std::nullopt;
    } catch (...) {
        busyPID = std::nullopt;
        throw;
    }
}

}  // namespace tidewell
