#include "apps/apps_view_model.h"

#include <algorithm>
#include <utility>

#include "async/background.h"
#include "platform/dates.h"
#include "platform/sum.h"

namespace tidewell {

AppsViewModel::AppsViewModel(const Host& host)
    : scanner(host, applicationFolders(host)), system{host.system} {}

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
    lastPutBack = std::nullopt;
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
        leaving_.clear();
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
        auto planning = background([scanner = scanner, app] { return scanner.plan(app); });
        auto plan = co_await planning;
        isBuildingPlan = false;
        if (!leaving_.contains(app.id)) pendingPlan = std::move(plan);
    } catch (...) {
        isBuildingPlan = false;
        throw;
    }
}

void AppsViewModel::toggleLeftover(const std::string& path) {
    if (!pendingPlan()) return;
    auto& leftovers = pendingPlan.mutate()->leftovers;
    const auto chosen = std::ranges::find(leftovers, path, &LeftoverFile::url);
    if (chosen != leftovers.end()) chosen->isSelected = !chosen->isSelected;
}

Task<> AppsViewModel::confirmUninstall() {
    if (!pendingPlan()) co_return;
    const auto plan = *pendingPlan();
    // The sheet closes before the work starts.
    pendingPlan = std::nullopt;
    leaving_.insert(plan.app.id);
    auto uninstalling = background([scanner = scanner, plan] { return scanner.uninstall(plan); });
    UninstallResult failed;
    failed.appName = plan.app.name;
    failed.failed.push_back(plan.app.name);
    auto result = co_await valueOr(uninstalling, failed);
    if (result.appBundleMoved)
        std::erase_if(apps.mutate(),
                      [&](const InstalledApp& app) { return app.id == plan.app.id; });
    else
        leaving_.erase(plan.app.id);
    lastUninstalled_ = plan.app;
    lastPutBack = std::nullopt;
    lastResult = std::move(result);
}

Task<> AppsViewModel::putBack() {
    if (!lastResult() || lastResult()->moved.empty()) co_return;
    const auto result = *lastResult();
    const auto app = lastUninstalled_;
    // A second wish finds nothing to undo.
    lastResult.mutate()->moved.clear();
    auto puttingBack = background([scanner = scanner, result] { return scanner.putBack(result); });
    PutBackResult failed;
    failed.appName = result.appName;
    failed.failed.push_back(result.appName);
    auto undone = co_await valueOr(puttingBack, failed);
    const bool isBack = app && std::ranges::find(undone.places, app->url) != undone.places.end();
    if (isBack && result.appBundleMoved) {
        apps.mutate().push_back(*app);
        leaving_.erase(app->id);
    }
    // What stays in the Trash may be tried again.
    auto left = result.moved;
    std::erase_if(left, [&undone](const TrashedItem& item) {
        return item.origin && std::ranges::find(undone.places, *item.origin) != undone.places.end();
    });
    if (lastResult()) lastResult.mutate()->moved = std::move(left);
    lastPutBack = std::move(undone);
}

void AppsViewModel::dismissResult() {
    lastResult = std::nullopt;
    lastPutBack = std::nullopt;
}

}  // namespace tidewell
