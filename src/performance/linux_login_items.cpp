#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string_view>

#include "performance/login_items.h"
#include "performance/unit_file.h"
#include "platform/desktop_entry.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/uuid.h"

namespace tidewell {

namespace {

constexpr std::size_t longestUnit = 1024 * 1024;
constexpr std::size_t mostAdditions = 64;

using Names = std::vector<std::string>;

Names namesIn(const std::string& folder) {
    return folderNames(folder).value_or(Names{});
}

std::string scopeOf(std::string_view path, const Host& host) {
    return isBelow(path, host.home) ? "You" : "System";
}

/// The program that a command starts, where it lies if that can be told.
std::string programOf(const Host& host, std::string_view command) {
    const auto words = commandWords(command);
    if (words.empty()) return unknownProgram;
    return namedProgram(host, words.front()).value_or(words.front());
}

bool haveCommon(const Names& left, const Names& right) {
    return std::ranges::any_of(left, [&right](const std::string& each) {
        return std::ranges::find(right, each) != right.end();
    });
}

/// Whether the desktop starts it; for a desktop that nobody knows, whether some one does.
bool isStarted(const DesktopEntry& entry, const Host& host, const Names& desktops) {
    if (entry.isHidden || !entry.startsWithSession || entry.exec.empty()) return false;
    if (!entry.tryExec.empty() && !namedProgram(host, entry.tryExec)) return false;
    if (desktops.empty()) return true;
    if (haveCommon(entry.notShowIn, desktops)) return false;
    return entry.onlyShowIn.empty() || haveCommon(entry.onlyShowIn, desktops);
}

/// A file of the user's own stands for the system's of its name, also to keep it from starting.
void addAutostartEntries(const Host& host, std::vector<LoginItem>& items) {
    const auto desktops = sessionDesktops(host);
    std::set<std::string> seen;
    for (const auto& settings : settingFolders(host)) {
        const auto folder = joinPath(settings, "autostart");
        for (const auto& name : namesIn(folder)) {
            if (pathExtension(name) != "desktop" || !seen.insert(name).second) continue;
            const auto path = joinPath(folder, name);
            const auto entry = readDesktopEntry(path);
            if (!entry || !isStarted(*entry, host, desktops)) continue;
            items.push_back({.id = randomUuid(),
                             .label = entry->name.value_or(std::string(nameWithoutExtension(name))),
                             .program = programOf(host, entry->exec),
                             .plistURL = path,
                             .scope = scopeOf(path, host)});
        }
    }
}

/// Where a user's units stand; of two with one name the first counts.
constexpr std::array<std::string_view, 5> unitFolders = {
    "{config}/systemd/user",       "/etc/systemd/user",     "{data}/systemd/user",
    "/usr/local/lib/systemd/user", "/usr/lib/systemd/user",
};

/// Where links say which are enabled.
constexpr std::array<std::string_view, 2> enablingFolders = {
    "{config}/systemd/user",
    "/etc/systemd/user",
};

struct FoundUnit {
    std::string path;
    UnitFile unit;
};

/// The files that add to a unit: those in the folders of its name, in the order of their own names.
/// Of two with one name the one counts whose folder comes first.
std::vector<std::string> additionsTo(const Host& host, const std::string& unit) {
    std::map<std::string, std::string> byName;
    for (const auto& units : unitFolders) {
        for (const auto& name : {unit, unitFileName(unit)}) {
            const auto folder = joinPath(host.locate(units), name + ".d");
            for (const auto& file : namesIn(folder))
                if (pathExtension(file) == "conf") byName.emplace(file, joinPath(folder, file));
        }
    }
    std::vector<std::string> paths;
    for (const auto& [name, path] : byName)
        if (paths.size() < mostAdditions) paths.push_back(path);
    return paths;
}

/// Absent for one that is masked: what stands there is no file.
std::optional<FoundUnit> findUnit(const Host& host, const std::string& name) {
    for (const auto& folder : unitFolders) {
        auto path = joinPath(host.locate(folder), unitFileName(name));
        if (!fileExists(path)) continue;
        const auto text = readFile(path, longestUnit);
        if (!text || text->empty()) return std::nullopt;
        FoundUnit found{.path = std::move(path), .unit = {}};
        readUnitFile(found.unit, *text);
        for (const auto& addition : additionsTo(host, name))
            if (const auto more = readFile(addition, longestUnit)) readUnitFile(found.unit, *more);
        return found;
    }
    return std::nullopt;
}

/// What a timer or a socket starts stands in the service of its name.
std::string commandOf(const Host& host, const std::string& name, const UnitFile& unit) {
    if (!unit.command.empty() || name.ends_with(".service")) return unit.command;
    const auto service = findUnit(host, std::string(nameWithoutExtension(name)) + ".service");
    return service ? service->unit.command : std::string();
}

bool isStartedUnit(std::string_view name) {
    constexpr std::array<std::string_view, 4> kinds = {"service", "timer", "socket", "path"};
    // The session makes units of autostart entries, which are listed already.
    const bool isTwin = name.starts_with("app-") && name.ends_with("@autostart.service");
    return !isTwin && std::ranges::find(kinds, pathExtension(name)) != kinds.end();
}

void addUnit(const Host& host, const std::string& name, std::string scope,
             std::vector<LoginItem>& items) {
    const auto found = findUnit(host, name);
    if (!found) return;
    const auto& unit = found->unit;
    items.push_back({.id = randomUuid(),
                     .label = unit.description.empty() ? name : unit.description,
                     .program = programOf(host, commandOf(host, name, unit)),
                     .plistURL = found->path,
                     .scope = std::move(scope)});
}

void addEnabledUnits(const Host& host, std::vector<LoginItem>& items) {
    std::set<std::string> seen;
    for (const auto& tablePath : enablingFolders) {
        const auto folder = host.locate(tablePath);
        for (const auto& target : namesIn(folder)) {
            if (pathExtension(target) != "wants") continue;
            for (const auto& name : namesIn(joinPath(folder, target)))
                if (isStartedUnit(name) && seen.insert(name).second)
                    addUnit(host, name, scopeOf(folder, host), items);
        }
    }
}

}  // namespace

std::vector<LoginItem> linuxLoginItems(const Host& host) {
    std::vector<LoginItem> items;
    addAutostartEntries(host, items);
    addEnabledUnits(host, items);
    return items;
}

}  // namespace tidewell
