#include "apps/leftover_search.h"

#include <array>
#include <set>

#include "apps/uninstall_plan.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

enum class NamedBy { bundleID, name };

struct ExactPlace {
    NamedBy namedBy;
    std::string_view folder;
    std::string_view suffix;
    std::string_view category;
};

constexpr std::array exactPlaces = {
    ExactPlace{NamedBy::bundleID, "Caches", "", "Cache"},
    ExactPlace{NamedBy::bundleID, "Preferences", ".plist", "Preferences"},
    ExactPlace{NamedBy::bundleID, "Containers", "", "Container"},
    ExactPlace{NamedBy::bundleID, "Saved Application State", ".savedState", "Saved State"},
    ExactPlace{NamedBy::bundleID, "HTTPStorages", "", "Web Storage"},
    ExactPlace{NamedBy::bundleID, "WebKit", "", "WebKit Data"},
    ExactPlace{NamedBy::bundleID, "Application Support", "", "Application Support"},
    ExactPlace{NamedBy::name, "Application Support", "", "Application Support"},
    ExactPlace{NamedBy::name, "Caches", "", "Cache"},
    ExactPlace{NamedBy::name, "Logs", "", "Logs"},
};

/// A folder that applications share, where an entry belongs to the one whose identifier it holds.
struct SweptFolder {
    std::string_view folder;
    std::string_view category;
};

constexpr std::array sweptFolders = {
    SweptFolder{"Group Containers", "Group Container"},
    SweptFolder{"LaunchAgents", launchAgentCategory},
};

/// Whether a name chosen by a bundle names an entry directly inside a folder, and neither the
/// folder itself nor anything elsewhere ("", "..", "../Keychains", "a/b"). A zero byte would end
/// the path early on its way to the system.
bool canNameAnEntry(std::string_view name) {
    constexpr std::string_view neverInAName("/\0", 2);
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of(neverInAName) == std::string_view::npos;
}

/// Whether an identifier is specific enough to be looked for inside other names: "com.maker.app".
/// A bare word, or a dot at either end, fits what belongs to others.
bool canBeSwept(std::string_view identifier) {
    return identifier.find('.') != std::string_view::npos && identifier.front() != '.' &&
           identifier.back() != '.';
}

std::vector<LeftoverPlace> exactPlacesOf(const InstalledApp& app, std::string_view library) {
    std::vector<LeftoverPlace> places;
    for (const auto& row : exactPlaces) {
        if (row.namedBy == NamedBy::bundleID && !app.bundleID) continue;
        const auto& name = row.namedBy == NamedBy::name ? app.name : *app.bundleID;
        if (!canNameAnEntry(name)) continue;
        const auto folder = joinPath(library, row.folder);
        places.push_back(
            {.path = joinPath(folder, name) + std::string(row.suffix), .category = row.category});
    }
    return places;
}

std::vector<LeftoverPlace> sweptPlacesOf(std::string_view identifier, std::string_view library) {
    std::vector<LeftoverPlace> places;
    for (const auto& row : sweptFolders) {
        const auto folder = joinPath(library, row.folder);
        for (const auto& name : folderNames(folder).value_or(std::vector<std::string>{}))
            if (name.find(identifier) != std::string::npos)
                places.push_back({.path = joinPath(folder, name), .category = row.category});
    }
    return places;
}

}  // namespace

std::vector<LeftoverPlace> findLeftoverPlaces(const InstalledApp& app, std::string_view library) {
    const auto folder = standardizedPath(library);
    auto places = exactPlacesOf(app, folder);
    if (app.bundleID && canBeSwept(*app.bundleID))
        for (auto& place : sweptPlacesOf(*app.bundleID, folder)) places.push_back(std::move(place));
    std::set<std::string> seen;
    std::erase_if(places, [&](const LeftoverPlace& place) {
        return !seen.insert(place.path).second || !fileExists(place.path);
    });
    return places;
}

}  // namespace tidewell
