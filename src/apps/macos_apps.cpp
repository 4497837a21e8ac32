#include <algorithm>
#include <set>
#include <string_view>

#include "apps/app_finders.h"
#include "platform/bundle.h"
#include "platform/freed_usage.h"
#include "platform/path_text.h"

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

/// Absent for the platform's own applications, which are never offered.
std::optional<InstalledApp> readApp(const Host& host, const std::string& path) {
    if (path.starts_with(host.systemPath("/System/"))) return std::nullopt;
    const auto bundle = readBundle(path).value_or(Bundle{});
    if (bundle.identifier && bundle.identifier->starts_with("com.apple.")) return std::nullopt;
    const auto name = firstText(bundle, "CFBundleName", "CFBundleDisplayName");
    return InstalledApp{
        .id = bundle.identifier.value_or(path),
        .name = name.value_or(std::string(nameWithoutExtension(path))),
        .url = path,
        .bundleID = bundle.identifier,
        .version = firstText(bundle, "CFBundleShortVersionString", "CFBundleVersion"),
        .sizeBytes = freedUsage(path, host.system).freedBytes,
        .lastUsed = lastUsedDate(path),
    };
}

}  // namespace

std::vector<InstalledApp> macOSApps(const Host& host, const std::vector<std::string>& searchDirs,
                                    const AppProgress& onProgress) {
    const auto paths = findBundles(searchDirs);
    std::vector<InstalledApp> apps;
    double processed = 0;
    for (const auto& path : paths) {
        if (auto app = readApp(host, path)) apps.push_back(std::move(*app));
        ++processed;
        if (onProgress) onProgress(processed / static_cast<double>(paths.size()));
    }
    return apps;
}

std::vector<std::string> applicationFolders(const Host& host) {
    return {
        host.systemPath("/Applications"),
        host.systemPath("/Applications/Utilities"),
        joinPath(host.home, "Applications"),
    };
}

}  // namespace tidewell
