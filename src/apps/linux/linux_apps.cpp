#include "apps/linux/linux_apps.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

#include "apps/app_finders.h"
#include "apps/leftover_search.h"
#include "platform/disk_usage.h"
#include "platform/files.h"
#include "platform/freed_usage.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::size_t mostEntriesLookedAt = 2000;

/// Each name once, and none that two applications go by: nobody could tell whose things those are.
void keepOwnNames(std::vector<InstalledApp>& apps) {
    std::map<std::string, int> users;
    for (auto& app : apps) {
        std::set<std::string> each(app.ownNames.begin(), app.ownNames.end());
        app.ownNames.assign(each.begin(), each.end());
        each.insert(app.ownFolder);
        for (const auto& name : each) ++users[name];
    }
    for (auto& app : apps) {
        std::erase_if(app.ownNames, [&users](const auto& name) { return users[name] > 1; });
        if (users[app.ownFolder] > 1) app.ownFolder.clear();
    }
}

/// The same program may come from two installers; the second goes by its path.
void keepIdsApart(std::vector<InstalledApp>& apps) {
    std::set<std::string> ids;
    for (auto& app : apps)
        if (!ids.insert(app.id).second) app.id = app.url;
}

/// What flatpak deploys shares its files with flatpak's own store, where they go with it.
ByteCount measured(const InstalledApp& app, const Host& host) {
    const bool isFlatpak = app.kind == AppKind::flatpakUser || app.kind == AppKind::flatpakSystem;
    return isFlatpak ? allocatedSize(app.url) : freedUsage(app.url, host.system).freedBytes;
}

/// When anything last changed directly in what it keeps.
std::optional<Date> lastChange(const std::vector<LeftoverPlace>& places) {
    std::optional<Date> newest;
    for (const auto& place : places) {
        auto names = folderNames(place.path).value_or(std::vector<std::string>{});
        names.resize(std::min(names.size(), mostEntriesLookedAt));
        for (const auto& name : names)
            newest = std::max(newest, modificationDate(joinPath(place.path, name)));
    }
    return newest;
}

}  // namespace

std::vector<InstalledApp> linuxApps(const Host& host, const AppProgress& onProgress) {
    std::vector<InstalledApp> apps;
    for (auto* finder : {packagedApps, flatpakApps, snapApps, ownApps})
        std::ranges::move(finder(host), std::back_inserter(apps));
    keepOwnNames(apps);
    keepIdsApart(apps);
    double done = 0;
    for (auto& app : apps) {
        if (app.kind != AppKind::package) app.sizeBytes = measured(app, host);
        app.lastUsed = lastChange(linuxLeftoverPlaces(app, host));
        ++done;
        if (onProgress) onProgress(done / static_cast<double>(apps.size()));
    }
    return apps;
}

}  // namespace tidewell
