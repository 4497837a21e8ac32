#include "apps/apps_view_model.h"

#include <utility>

#include "async/background.h"
#include "platform/dates.h"
#include "platform/sum.h"

namespace tidewell {

AppsViewModel::AppsViewModel(const Host& host) : scanner(host, applicationFolders(host)) {}

std::vector<InstalledApp> AppsViewModel::sortedApps() const {
    return sorted(apps(), sortOrder(), now());
}

ByteCount AppsViewModel::totalAppBytes() const {
    return sumOf(apps(), &InstalledApp::sizeBytes);
}

Task<> AppsViewModel::scan() {
    if (phase() == Phase::scanning) co_return;
    const auto before = phase();
    phase = Phase::scanning;
    scanProgress = 0.0;
    lastResult = std::nullopt;
    auto& executor = Executor::main();
    const auto report = [weak = weak_from_this(), &executor](double fraction) {
        executor.post([weak, fraction] {
            if (const auto self = weak.lock()) self->scanProgress = fraction;
        });
    };
    try {
        auto scanning = background([scanner = scanner, report] { return scanner.scan(report); });
        auto found = co_await scanning;
        apps = std::move(found);
        scanProgress = 1.0;
        phase = Phase::list;
    } catch (...) {
        phase = before;
        throw;
    }
}

Task<> AppsViewModel::prepareUninstall(InstalledApp app) {
    isBuildingPlan = true;
    try {
        auto searching =
            background([scanner = scanner, app] { return scanner.findLeftovers(app); });
        auto leftovers = co_await searching;
        isBuildingPlan = false;
        pendingPlan = UninstallPlan{.app = std::move(app), .leftovers = std::move(leftovers)};
    } catch (...) {
        isBuildingPlan = false;
        throw;
    }
}

Task<> AppsViewModel::confirmUninstall() {
    if (!pendingPlan()) co_return;
    const auto plan = *pendingPlan();
    // The sheet closes before the work starts.
    pendingPlan = std::nullopt;
    auto uninstalling = background([scanner = scanner, plan] { return scanner.uninstall(plan); });
    UninstallResult failed;
    failed.appName = plan.app.name;
    failed.failed.push_back(plan.app.name);
    auto result = co_await valueOr(uninstalling, failed);
    if (result.appBundleMoved)
        std::erase_if(apps.mutate(),
                      [&](const InstalledApp& app) { return app.id == plan.app.id; });
    lastResult = std::move(result);
}

}  // namespace tidewell
