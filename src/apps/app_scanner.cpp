#include "apps/app_scanner.h"

#include <algorithm>

#include "apps/leftover_search.h"
#include "apps/linux/removal_command.h"
#include "apps/uninstaller.h"
#include "platform/freed_usage.h"
#include "platform/path_text.h"
#include "platform/uuid.h"

namespace tidewell {

namespace {

std::vector<LeftoverPlace> placesOf(const InstalledApp& app, const Host& host) {
    switch (host.system) {
        case System::macOS:
            return findLeftoverPlaces(app, joinPath(host.home, "Library"));
        case System::linux:
            return linuxLeftoverPlaces(app, host);
    }
    return {};
}

}  // namespace

AppScanner::AppScanner(Host host, std::vector<std::string> searchDirs)
    : host_(std::move(host)), searchDirs_(std::move(searchDirs)) {}

std::vector<InstalledApp> AppScanner::scan(const Progress& onProgress) const {
    switch (host_.system) {
        case System::macOS:
            return macOSApps(host_, searchDirs_, onProgress);
        case System::linux:
            return linuxApps(host_, onProgress);
    }
    return {};
}

std::vector<LeftoverFile> AppScanner::findLeftovers(const InstalledApp& app) const {
    std::vector<LeftoverFile> leftovers;
    for (auto& place : placesOf(app, host_)) {
        const auto size = freedUsage(place.path, host_.system).freedBytes;
        leftovers.push_back({
            .id = randomUuid(),
            .url = std::move(place.path),
            .category = std::string(place.category),
            .sizeBytes = size,
            .isSelected = place.goesByItself,
        });
    }
    std::ranges::stable_sort(leftovers, [](const LeftoverFile& left, const LeftoverFile& right) {
        if (left.isSelected != right.isSelected) return left.isSelected;
        return left.sizeBytes > right.sizeBytes;
    });
    return leftovers;
}

UninstallPlan AppScanner::plan(const InstalledApp& app) const {
    UninstallPlan plan{.app = app, .leftovers = findLeftovers(app)};
    if (uninstallWay(app.kind) == UninstallWay::shownCommand)
        plan.command = removalCommand(app, host_);
    return plan;
}

PutBackResult AppScanner::putBack(const UninstallResult& result) const {
    return undoUninstall(result, host_);
}

UninstallResult AppScanner::uninstall(const UninstallPlan& plan) const {
    return tidewell::uninstall(plan, host_);
}

}  // namespace tidewell
