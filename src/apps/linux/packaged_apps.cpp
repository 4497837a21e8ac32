#include <algorithm>
#include <map>
#include <set>

#include "apps/linux/app_entries.h"
#include "apps/linux/debian_packages.h"
#include "apps/linux/linux_apps.h"
#include "platform/icon_theme.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

/// Where an entry lies by the machine's own account; absent for the user's own.
std::optional<std::string> machinePath(const Host& host, const std::string& path) {
    if (isBelow(path, host.home)) return std::nullopt;
    if (host.root == "/") return path;
    return isBelow(path, host.root) ? std::optional(path.substr(host.root.size())) : std::nullopt;
}

/// The entry that people mean by the package: of its name, or that starts a program of its name,
/// and that with the fewest words.
const AppEntry& mainEntry(const std::string& package, const std::vector<AppEntry>& entries) {
    const auto rank = [&package](const AppEntry& entry) {
        const bool isMeant = entry.file.id == package || lastPathComponent(entry.word) == package;
        return std::pair(!isMeant, commandWords(entry.file.entry.exec).size());
    };
    return *std::ranges::min_element(entries, {}, rank);
}

InstalledApp packagedApp(const Host& host, const std::string& name, const DebianPackage& package,
                         const std::vector<AppEntry>& entries) {
    const auto& main = mainEntry(name, entries);
    InstalledApp app{
        .id = name,
        .name = main.file.entry.name.value_or(name),
        .url = main.file.path,
        .bundleID = main.file.id,
        .version = package.version.empty() ? std::nullopt : std::optional(package.version),
        .sizeBytes = package.sizeBytes,
        .lastUsed = std::nullopt,
        .kind = AppKind::package,
        .installerName = name,
    };
    for (const auto& entry : entries) {
        app.entryIds.push_back(entry.file.id);
        std::ranges::move(namesKeptUnder(entry), std::back_inserter(app.ownNames));
    }
    app.iconFile = iconFile(host, main.file.entry.icon, iconFolders(host)).value_or("");
    return app;
}

}  // namespace

std::vector<InstalledApp> packagedApps(const Host& host) {
    const auto packages = installedPackages(host);
    std::map<std::string, AppEntry> entries;  // by the machine's own paths
    if (packages.empty()) return {};
    for (auto& file : applicationEntries(host)) {
        const auto path = machinePath(host, file.path);
        auto entry = appEntryOf(host, std::move(file));
        if (path && isShown(host, entry)) entries.emplace(*path, std::move(entry));
    }
    std::set<std::string, std::less<>> paths;
    for (const auto& [path, entry] : entries) paths.insert(path);
    std::map<std::string, std::vector<AppEntry>> byPackage;
    for (const auto& [path, package] : packagesOfFiles(host, paths))
        byPackage[package].push_back(entries.at(path));
    std::vector<InstalledApp> apps;
    for (const auto& [name, ofPackage] : byPackage)
        if (const auto package = packages.find(name); package != packages.end())
            apps.push_back(packagedApp(host, name, package->second, ofPackage));
    return apps;
}

}  // namespace tidewell
