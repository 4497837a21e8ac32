#include "deepscan/installer_scanner.h"

#include <algorithm>
#include <array>
#include <utility>

#include "cleanup/user_dirs.h"
#include "deepscan/installer_sign.h"
#include "platform/dates.h"
#include "platform/folder_walk.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::array<std::string_view, 2> downloadPlaces = {"Downloads", "Desktop"};

constexpr std::int64_t daysInMonth = 30;
constexpr std::int64_t daysInYear = 360;

bool liesInOneOf(std::string_view path, const std::vector<BigItem>& listed) {
    return std::ranges::any_of(listed,
                               [path](const BigItem& item) { return isBelow(path, item.path()); });
}

std::string ago(std::int64_t count, std::string_view unit) {
    return std::to_string(count) + " " + std::string(unit) + (count == 1 ? "" : "s") + " ago";
}

/// The usual ones, and what the user's desktop calls them; no place that lies in another.
std::vector<std::string> placesOfDownloads(const Host& host) {
    std::vector<std::string> places;
    const auto add = [&places](const std::string& place) {
        const auto isInside = [&place](const auto& other) { return isAtOrBelow(place, other); };
        if (std::ranges::none_of(places, isInside)) places.push_back(place);
    };
    for (const auto name : downloadPlaces) add(joinPath(host.home, name));
    for (const auto& dir : userDirs(host))
        if (dir.kind == "DOWNLOAD" || dir.kind == "DESKTOP") add(dir.path);
    return places;
}

}  // namespace

const InstallerType* installerType(const std::string& path, System system) {
    const auto extension = lowerCased(pathExtension(path));
    for (const auto& type : deepScanKnowledge(system).installers)
        if ((type.extension.empty() || type.extension == extension) && hasSign(path, type.sign))
            return &type;
    return nullptr;
}

std::string installerAge(std::int64_t days) {
    if (days < 1) return "today";
    if (days < daysInMonth) return ago(days, "day");
    if (days < daysInYear) return ago(days / daysInMonth, "month");
    return ago(days / daysInYear, "year");
}

std::string installerNote(const InstallerType& type, std::optional<Date> added, Date now) {
    auto note = std::string(type.label) + ".";
    if (added) note += " Added " + installerAge(wholeDaysBetween(*added, now)) + ".";
    return note + " " + std::string(type.advice);
}

InstallerScanner::InstallerScanner(Host host) : host_(std::move(host)) {}

/// A folder with an installer's extension counts like a file, and is walked all the same unless it
/// is a package.
std::vector<std::string> InstallerScanner::downloads() const {
    std::vector<std::string> paths;
    for (const auto& place : placesOfDownloads(host_)) {
        walkFolder(place, HiddenEntries::passOver, [&paths](const WalkEntry& entry) {
            if (entry.level >= installerMaximumLevel) return Descent::skip;
            paths.emplace_back(entry.path);
            return Descent::enter;
        });
    }
    return paths;
}

BigItem InstallerScanner::describe(const std::string& path, const InstallerType& type,
                                   const FreedUsage& usage) const {
    return {.id = path,
            .name = std::string(lastPathComponent(path)),
            .location = std::string(host_.relativeToHome(parentPath(path))),
            .sizeBytes = usage.freedBytes,
            .sharedBytes = usage.sharedBytes,
            .isDirectory = type.extension == "mpkg",
            .kind = BigItem::Kind::installer,
            .note = installerNote(type, modificationDate(path), now()),
            .reclaimCommand = std::nullopt};
}

std::vector<BigItem> InstallerScanner::scan(const std::vector<BigItem>& listed) const {
    const bool countsAlone = deepScanKnowledge(host_.system).nested == NestedInstallers::listedToo;
    std::vector<BigItem> items;
    for (const auto& path : downloads()) {
        const auto* type = installerType(path, host_.system);
        if (!type || (!countsAlone && liesInOneOf(path, listed))) continue;
        const auto usage = freedUsage(path, host_.system);
        if (usage.freedBytes >= installerMinimumSize) items.push_back(describe(path, *type, usage));
    }
    sortBySize(items);
    return items;
}

}  // namespace tidewell
