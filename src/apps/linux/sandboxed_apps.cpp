#include <algorithm>
#include <map>

#include "apps/linux/app_entries.h"
#include "apps/linux/linux_apps.h"
#include "platform/files.h"
#include "platform/icon_theme.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::size_t longestDescription = 256 * 1024;

using Names = std::vector<std::string>;

Names namesIn(const std::string& folder) {
    return folderNames(folder).value_or(Names{});
}

/// "org.example.Paint": several pieces that mean nothing but themselves in a command.
bool isFlatpakId(std::string_view id) {
    constexpr std::string_view allowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.";
    return id.size() < 256 && id.find('.') != id.npos && id.front() != '.' && id.front() != '-' &&
           id.find_first_not_of(allowed) == id.npos;
}

bool isSnapName(std::string_view name) {
    constexpr std::string_view allowed = "abcdefghijklmnopqrstuvwxyz0123456789-";
    return !name.empty() && name.front() != '-' && name.find_first_not_of(allowed) == name.npos;
}

/// What a link or a folder really is, if that lies in `holder`.
std::optional<std::string> realIn(const std::string& path, const std::string& holder) {
    auto real = resolvedPath(path);
    const auto realHolder = resolvedPath(holder);
    return real && realHolder && isBelow(*real, *realHolder) ? real : std::nullopt;
}

std::optional<InstalledApp> flatpakApp(const Host& host, const std::string& folder,
                                       const std::string& id, AppKind kind) {
    const auto path = joinPath(folder, id);
    const auto deployed = realIn(joinPath(path, "current/active"), path);
    if (!deployed) return std::nullopt;
    const auto shared = joinPath(*deployed, "export/share");
    const auto entry = readDesktopEntry(joinPath(shared, "applications/" + id + ".desktop"))
                           .value_or(DesktopEntry{});
    InstalledApp app{
        .id = id,
        .name = entry.name.value_or(id),
        .url = path,
        .bundleID = id,
        .version = std::nullopt,
        .sizeBytes = 0,
        .lastUsed = std::nullopt,
        .kind = kind,
        .installerName = id,
        .entryIds = {id},
        .ownNames = {id},
        .ownFolder = joinPath(host.home, ".var/app/" + id),
    };
    const auto icon = entry.icon.empty() ? id : entry.icon;
    app.iconFile = iconFile(host, icon, {joinPath(shared, "icons")}).value_or("");
    return app;
}

void addFlatpaks(const Host& host, const std::string& installation, AppKind kind,
                 std::vector<InstalledApp>& apps) {
    const auto folder = joinPath(installation, "app");
    for (const auto& id : namesIn(folder)) {
        if (!isFlatpakId(id)) continue;
        if (auto app = flatpakApp(host, folder, id, kind)) apps.push_back(std::move(*app));
    }
}

/// The value of "version: '1.2'" in a snap's description.
std::optional<std::string> snapVersion(const std::string& folder) {
    const auto text = readFile(joinPath(folder, "meta/snap.yaml"), longestDescription);
    constexpr std::string_view field = "version:";
    if (!text) return std::nullopt;
    for (std::string_view rest = *text; !rest.empty();) {
        auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        if (!line.starts_with(field)) continue;
        line.remove_prefix(std::min(line.find_first_not_of(" '\"", field.size()), line.size()));
        return std::string(line.substr(0, line.find_last_not_of(" '\"\r") + 1));
    }
    return std::nullopt;
}

/// By the entries that the snap has put in the menus, whose names begin with its own.
InstalledApp snapApp(const Host& host, const std::string& name,
                     const std::vector<AppEntry>& entries) {
    const auto mounted = host.systemPath("/snap/" + name);
    const auto current = realIn(joinPath(mounted, "current"), mounted);
    const auto revision = current ? std::string(lastPathComponent(*current)) : std::string();
    const auto file = host.systemPath("/var/lib/snapd/snaps/" + name + "_" + revision + ".snap");
    const auto& main = entries.front().file;
    InstalledApp app{
        .id = name,
        .name = main.entry.name.value_or(name),
        .url = fileExists(file) ? file : main.path,
        .bundleID = main.id,
        .version = current ? snapVersion(*current) : std::nullopt,
        .sizeBytes = 0,
        .lastUsed = std::nullopt,
        .kind = AppKind::snap,
        .installerName = name,
        .entryIds = {name},
        .ownFolder = joinPath(host.home, "snap/" + name),
    };
    for (const auto& entry : entries) app.entryIds.push_back(entry.file.id);
    app.iconFile = iconFile(host, main.entry.icon, iconFolders(host)).value_or("");
    return app;
}

}  // namespace

std::vector<InstalledApp> flatpakApps(const Host& host) {
    std::vector<InstalledApp> apps;
    addFlatpaks(host, joinPath(host.baseFolders.data, "flatpak"), AppKind::flatpakUser, apps);
    addFlatpaks(host, host.systemPath("/var/lib/flatpak"), AppKind::flatpakSystem, apps);
    return apps;
}

std::vector<InstalledApp> snapApps(const Host& host) {
    const auto folder = host.systemPath("/var/lib/snapd/desktop/applications");
    std::map<std::string, std::vector<AppEntry>> bySnap;
    for (const auto& file : namesIn(folder)) {
        const auto snap = file.substr(0, file.find('_'));
        if (pathExtension(file) != "desktop" || snap == file || !isSnapName(snap)) continue;
        const auto path = joinPath(folder, file);
        auto facts = readDesktopEntry(path);
        if (!facts || facts->type != "Application") continue;
        auto entry = appEntryOf(host, {.id = std::string(nameWithoutExtension(file)),
                                       .path = path,
                                       .entry = *std::move(facts)});
        if (isShown(host, entry)) bySnap[snap].push_back(std::move(entry));
    }
    std::vector<InstalledApp> apps;
    for (const auto& [name, entries] : bySnap) apps.push_back(snapApp(host, name, entries));
    return apps;
}

}  // namespace tidewell
