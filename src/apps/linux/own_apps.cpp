#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "apps/linux/app_entries.h"
#include "apps/linux/linux_apps.h"
#include "cleanup/user_dirs.h"
#include "platform/file_start.h"
#include "platform/files.h"
#include "platform/icon_theme.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::array<std::string_view, 5> programFolders = {"~/Applications", "~/.local/bin",
                                                            "~/bin", "~/Downloads", "~/Desktop"};

bool liesIn(std::string_view path, const std::vector<std::string>& folders) {
    return std::ranges::any_of(folders,
                               [path](const auto& folder) { return isBelow(path, folder); });
}

/// All entries of the user's own, and of others whose program lies in the home folder.
struct OwnEntries {
    explicit OwnEntries(const Host& machine) : host(machine) {
        for (auto& file : applicationEntries(host))
            entries.push_back(appEntryOf(host, std::move(file)));
        for (const auto& entry : entries) ++timesNamed[entry.file.entry.icon];
    }

    /// The pictures among the user's own icons that this entry names and no other.
    std::vector<std::string> iconsOf(const AppEntry& entry) const {
        const auto& icon = entry.file.entry.icon;
        std::vector<std::string> found;
        if (timesNamed.at(icon) != 1) return found;
        for (const auto& folder :
             {joinPath(host.baseFolders.data, "icons"), joinPath(host.home, ".icons")}) {
            if (icon.starts_with('/') && isBelow(host.pathNamedInside(icon), folder))
                found.push_back(standardizedPath(host.pathNamedInside(icon)));
            std::ranges::move(iconFilesIn(folder, icon), std::back_inserter(found));
        }
        return found;
    }

    const Host& host;
    std::vector<AppEntry> entries;
    std::map<std::string, int> timesNamed;
};

/// Unpacked programs lie in a folder of their own, mostly with a "bin" in it. That folder goes
/// whole if no other program lies there; else the file alone.
std::string whatGoes(const OwnEntries& own, const std::string& program) {
    auto folder = parentPath(program);
    if (lastPathComponent(folder) == "bin") folder = parentPath(folder);
    if (!liesIn(folder, unpackedFolders(own.host))) return program;
    const auto& data = own.host.baseFolders.data;
    // What lies directly among the data of all programs must bear the name of this one.
    const bool isAmongData = parentPath(folder) == data;
    if (isAmongData &&
        lowerCased(lastPathComponent(folder)) != lowerCased(nameWithoutExtension(program)))
        return program;
    for (const auto& entry : own.entries)
        if (entry.program && *entry.program != program && isBelow(*entry.program, folder))
            return program;
    return std::string(folder);
}

void describe(InstalledApp& app, const OwnEntries& own, const std::vector<AppEntry>& entries) {
    if (entries.empty()) return;
    const auto& main = entries.front().file;
    app.name = main.entry.name.value_or(app.name);
    app.bundleID = main.id;
    for (const auto& entry : entries) {
        app.entryIds.push_back(entry.file.id);
        std::ranges::move(namesKeptUnder(entry), std::back_inserter(app.ownNames));
        app.menuFiles.push_back(entry.file.path);
        std::ranges::move(own.iconsOf(entry), std::back_inserter(app.menuFiles));
    }
    app.iconFile = iconFile(own.host, main.entry.icon, iconFolders(own.host)).value_or("");
}

InstalledApp ownApp(AppKind kind, const std::string& path) {
    return {.id = path,
            .name = std::string(nameWithoutExtension(path)),
            .url = path,
            .bundleID = std::nullopt,
            .version = std::nullopt,
            .sizeBytes = 0,
            .lastUsed = std::nullopt,
            .kind = kind};
}

/// A program that starts others is not what its entry is about; what a sandbox or a store of
/// programs starts is listed as its own.
bool isOwnProgram(const Host& host, const AppEntry& entry) {
    if (!entry.program || isLauncher(*entry.program)) return false;
    const auto& data = host.baseFolders.data;
    return isBelow(*entry.program, host.home) &&
           isBelow(entry.file.path, joinPath(data, "applications")) &&
           !liesIn(*entry.program, {joinPath(data, "flatpak"), joinPath(host.home, "snap"),
                                    joinPath(host.home, ".var")});
}

}  // namespace

bool isAppImageFile(const std::string& path) {
    constexpr std::size_t needed = 11;
    constexpr std::string_view program(
        "\x7F"
        "ELF");
    const auto start = fileStart(path, needed);
    if (!start || start->bytes.size() < needed || !start->bytes.starts_with(program)) return false;
    return start->bytes.compare(8, 2, "AI") == 0 &&
           (start->bytes[10] == '\x01' || start->bytes[10] == '\x02');
}

std::vector<std::string> appImageFolders(const Host& host) {
    std::vector<std::string> folders;
    for (const auto folder : programFolders) folders.push_back(host.locate(folder));
    for (const auto& [kind, path] : userDirs(host))
        if (kind == "DOWNLOAD" || kind == "DESKTOP") folders.push_back(path);
    std::ranges::sort(folders);
    const auto [rest, end] = std::ranges::unique(folders);
    folders.erase(rest, end);
    return folders;
}

std::vector<std::string> unpackedFolders(const Host& host) {
    return {joinPath(host.home, ".local/opt"), joinPath(host.home, "opt"),
            joinPath(host.home, "Applications"), host.baseFolders.data};
}

std::vector<InstalledApp> ownApps(const Host& host) {
    const OwnEntries own(host);
    std::map<std::string, std::vector<AppEntry>> byProgram;
    for (const auto& entry : own.entries)
        if (isShown(host, entry) && isOwnProgram(host, entry))
            byProgram[*entry.program].push_back(entry);
    std::vector<InstalledApp> apps;
    std::set<std::string> images;
    for (const auto& folder : appImageFolders(host)) {
        for (const auto& name : folderNames(folder).value_or(std::vector<std::string>{})) {
            const auto path = joinPath(folder, name);
            const auto real = resolvedPath(path);
            if (!real || !isAppImageFile(path) || !images.insert(*real).second) continue;
            apps.push_back(ownApp(AppKind::appImage, path));
            describe(apps.back(), own, byProgram[*real]);
        }
    }
    for (const auto& [program, entries] : byProgram) {
        if (entries.empty() || images.contains(program)) continue;
        const bool isImage = isAppImageFile(program);
        auto app = isImage ? ownApp(AppKind::appImage, program)
                           : ownApp(AppKind::local, whatGoes(own, program));
        describe(app, own, entries);
        app.id = app.bundleID.value_or(app.url);
        apps.push_back(std::move(app));
    }
    return apps;
}

}  // namespace tidewell
