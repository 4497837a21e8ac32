#include "apps/app_scanner.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "apps/leftover_search.h"
#include "apps/uninstaller.h"
#include "platform/bundle.h"
#include "platform/freed_usage.h"
#include "platform/path_text.h"
#include "platform/uuid.h"

namespace tidewell {

namespace {

bool isAppName(std::string_view name) {
    return name.ends_with(".app");
}

std::vector<std::string> namesIn(const std::string& folder) {
    return folderNames(folder).value_or(std::vector<std::string>{});
}

/// The bundles inside a folder that stands in a search folder, such as a suite of applications.
std::vector<std::string> bundlesOneFolderDown(const std::string& folder) {
    std::vector<std::string> paths;
    for (const auto& name : namesIn(folder))
        if (isAppName(name)) paths.push_back(joinPath(folder, name));
    return paths;
}

/// Bundles in the order in which they are found, each once, although search folders may lie in
/// each other.
std::vector<std::string> findBundles(const std::vector<std::string>& searchDirs) {
    std::vector<std::string> found;
    std::set<std::string> seen;
    const auto add = [&](std::string path) {
        if (seen.insert(path).second) found.push_back(std::move(path));
    };
    for (const auto& folder : searchDirs) {
        for (const auto& name : namesIn(folder)) {
            auto path = joinPath(folder, name);
            if (isAppName(name)) {
                add(std::move(path));
            } else if (!name.starts_with('.')) {
                for (auto& inner : bundlesOneFolderDown(path)) add(std::move(inner));
            }
        }
    }
    return found;
}

/// The first of two entries of the Info dictionary that is a text, be it an empty one.
std::optional<std::string> firstText(const Bundle& bundle, std::string_view key,
                                     std::string_view otherKey) {
    auto text = bundle.info.textAt(key);
    return text ? text : bundle.info.textAt(otherKey);
}

}  // namespace

AppScanner::AppScanner(Host host, std::vector<std::string> searchDirs)
    : host_(std::move(host)), searchDirs_(std::move(searchDirs)) {}

std::vector<InstalledApp> AppScanner::scan(const Progress& onProgress) const {
    const auto paths = findBundles(searchDirs_);
    std::vector<InstalledApp> apps;
    double processed = 0;
    for (const auto& path : paths) {
        if (auto app = readApp(path)) apps.push_back(std::move(*app));
        ++processed;
        if (onProgress) onProgress(processed / static_cast<double>(paths.size()));
    }
    return apps;
}

/// Absent for the platform's own applications, which are never offered.
std::optional<InstalledApp> AppScanner::readApp(const std::string& path) const {
    if (path.starts_with(host_.systemPath("/System/"))) return std::nullopt;
    const auto bundle = readBundle(path).value_or(Bundle{});
    if (bundle.identifier && bundle.identifier->starts_with("com.apple.")) return std::nullopt;
    const auto name = firstText(bundle, "CFBundleName", "CFBundleDisplayName");
    return InstalledApp{
        .id = bundle.identifier.value_or(path),
        .name = name.value_or(std::string(nameWithoutExtension(path))),
        .url = path,
        .bundleID = bundle.identifier,
        .version = firstText(bundle, "CFBundleShortVersionString", "CFBundleVersion"),
        .sizeBytes = freedUsage(path, host_.system).freedBytes,
        .lastUsed = lastUsedDate(path),
    };
}

std::vector<LeftoverFile> AppScanner::findLeftovers(const InstalledApp& app) const {
    const auto library = joinPath(host_.home, "Library");
    std::vector<LeftoverFile> leftovers;
    for (auto& place : findLeftoverPlaces(app, library)) {
        const auto size = freedUsage(place.path, host_.system).freedBytes;
        leftovers.push_back({
            .id = randomUuid(),
            .url = std::move(place.path),
            .category = std::string(place.category),
            .sizeBytes = size,
        });
    }
    std::ranges::stable_sort(leftovers, std::ranges::greater{}, &LeftoverFile::sizeBytes);
    return leftovers;
}

PutBackResult AppScanner::putBack(const UninstallResult& result) const {
    return undoUninstall(result, host_);
}

UninstallResult AppScanner::uninstall(const UninstallPlan& plan) const {
    return tidewell::uninstall(plan, host_);
}

std::vector<std::string> applicationFolders(const Host& host) {
    return {
        host.systemPath("/Applications"),
        host.systemPath("/Applications/Utilities"),
        joinPath(host.home, "Applications"),
    };
}

}  // namespace tidewell
