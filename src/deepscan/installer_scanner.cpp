#include "deepscan/installer_scanner.h"

#include <algorithm>
#include <array>
#include <utility>

#include "cleanup/user_dirs.h"
#include "platform/dates.h"
#include "platform/disk_usage.h"
#include "platform/folder_walk.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

struct InstallerType {
    std::string_view extension;
    std::string_view label;
};

constexpr auto installerTypes = std::to_array<InstallerType>({
    {"dmg", "Disk image"},
    {"pkg", "Installer package"},
    {"mpkg", "Installer package"},
    {"iso", "Disc image"},
});

constexpr std::array<std::string_view, 2> downloadPlaces = {"Downloads", "Desktop"};

constexpr std::int64_t daysInMonth = 30;
constexpr std::int64_t daysInYear = 360;

const InstallerType* findType(std::string_view extension) {
    const auto* found = std::ranges::find(installerTypes, extension, &InstallerType::extension);
    return found == installerTypes.end() ? nullptr : found;
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

std::string_view installerExtension(std::string_view path) {
    const auto* type = findType(lowerCased(pathExtension(path)));
    return type ? type->extension : std::string_view{};
}

std::string installerAge(std::int64_t days) {
    if (days < 1) return "today";
    if (days < daysInMonth) return ago(days, "day");
    if (days < daysInYear) return ago(days / daysInMonth, "month");
    return ago(days / daysInYear, "year");
}

std::string installerNote(std::string_view extension, std::optional<Date> added, Date now) {
    const auto* type = findType(extension);
    std::string note = type ? std::string(type->label) + "." : std::string();
    if (added) note += " Added " + installerAge(wholeDaysBetween(*added, now)) + ".";
    return note + " Safe to trash once you've installed the app.";
}

InstallerScanner::InstallerScanner(Host host) : host_(std::move(host)) {}

/// A folder with an installer's extension counts like a file, and is walked all the same unless it
/// is a package.
std::vector<std::string> InstallerScanner::installerPaths() const {
    std::vector<std::string> paths;
    for (const auto& place : placesOfDownloads(host_)) {
        walkFolder(place, HiddenEntries::passOver, [&paths](const WalkEntry& entry) {
            if (entry.level >= installerMaximumLevel) return Descent::skip;
            if (!installerExtension(entry.name).empty()) paths.emplace_back(entry.path);
            return Descent::enter;
        });
    }
    return paths;
}

BigItem InstallerScanner::describe(const std::string& path, ByteCount size) const {
    const auto extension = installerExtension(path);
    return {.id = path,
            .name = std::string(lastPathComponent(path)),
            .location = std::string(host_.relativeToHome(parentPath(path))),
            .sizeBytes = size,
            .isDirectory = extension == "mpkg",
            .kind = BigItem::Kind::installer,
            .note = installerNote(extension, modificationDate(path), now()),
            .reclaimCommand = std::nullopt};
}

std::vector<BigItem> InstallerScanner::scan() const {
    std::vector<BigItem> items;
    for (const auto& path : installerPaths()) {
        const auto size = allocatedSize(path);
        if (size >= installerMinimumSize) items.push_back(describe(path, size));
    }
    sortBySize(items);
    return items;
}

}  // namespace tidewell
