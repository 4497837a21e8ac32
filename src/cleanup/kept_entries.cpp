#include "cleanup/kept_entries.h"

#include <algorithm>
#include <array>
#include <utility>

#include "cleanup/kept_entries/tables.h"
#include "cleanup/user_dirs.h"
#include "platform/path_text.h"
#include "platform/user_folders.h"

namespace tidewell {

namespace {

struct UsualPlace {
    std::string_view prefix;
    std::string BaseFolders::*folder;
};

constexpr std::array<UsualPlace, 3> usualPlaces = {{
    {".cache/", &BaseFolders::cache},
    {".config/", &BaseFolders::config},
    {".local/share/", &BaseFolders::data},
}};

/// Where a path of the tables may be found: in the home folder, and in the base folder that the
/// user has put in the place of the usual one.
std::vector<std::string> placesOf(std::string_view path, const Host& host) {
    std::vector<std::string> places = {joinPath(host.home, path)};
    for (const auto& usual : usualPlaces) {
        const auto& folder = host.baseFolders.*usual.folder;
        if (!path.starts_with(usual.prefix) || folder.empty()) continue;
        auto other = joinPath(folder, path.substr(usual.prefix.size()));
        if (other != places.front()) places.push_back(std::move(other));
    }
    return places;
}

std::vector<std::string> placesOfAll(std::span<const std::string_view> paths, const Host& host) {
    std::vector<std::string> places;
    for (const auto path : paths)
        std::ranges::move(placesOf(path, host), std::back_inserter(places));
    return places;
}

/// Programs in a sandbox have a cache folder of their own.
std::vector<std::string> neverSweptPlaces(std::span<const std::string_view> names,
                                          const Host& host) {
    std::vector<std::string> places;
    for (const auto name : names)
        for (const auto* folder : {".cache", "snap/*/*/.cache", ".var/app/*/cache"})
            std::ranges::move(placesOf(joinPath(folder, name), host), std::back_inserter(places));
    return places;
}

std::vector<std::string> personalFolders(const Host& host) {
    std::vector<std::string> folders;
    for (const auto name : userFolderNames(host.system))
        folders.push_back(joinPath(host.home, name));
    for (auto& dir : userDirs(host)) folders.push_back(std::move(dir.path));
    return folders;
}

}  // namespace

const KeptKnowledge& keptKnowledge(System system) {
    switch (system) {
        case System::macOS:
            return macOSKeptKnowledge;
        case System::linux:
            return linuxKeptKnowledge;
    }
    return macOSKeptKnowledge;
}

KeptEntries keptEntries(const Host& host) {
    const auto& knowledge = keptKnowledge(host.system);
    return {.personalFolders = personalFolders(host),
            .keys = placesOfAll(knowledge.keys, host),
            .profiles = placesOfAll(knowledge.profiles, host),
            .neverSwept = neverSweptPlaces(knowledge.neverSwept, host),
            .namedByRows = {},
            .buildOutput = knowledge.buildOutput};
}

bool isNameOf(std::string_view pattern, std::string_view name) {
    if (!pattern.ends_with('*')) return name == pattern;
    pattern.remove_suffix(1);
    return name.starts_with(pattern);
}

bool isAtOrBelowPattern(std::string_view path, std::string_view pattern) {
    const auto star = pattern.find('*');
    if (star == std::string_view::npos) return isAtOrBelow(path, pattern);
    if (!path.starts_with(pattern.substr(0, star))) return false;  // spares taking it apart
    const auto pieces = pathPieces(path);
    const auto wanted = pathPieces(pattern);
    if (pieces.size() < wanted.size()) return false;
    return std::equal(wanted.begin(), wanted.end(), pieces.begin(), isNameOf);
}

bool isAtOrBelowAny(std::string_view path, const std::vector<std::string>& patterns) {
    return std::ranges::any_of(
        patterns, [path](const auto& pattern) { return isAtOrBelowPattern(path, pattern); });
}

std::vector<std::string> namedInside(const KeptEntries& kept,
                                     const std::vector<std::string>& paths) {
    std::vector<std::string> named;
    for (const auto& path : paths) {
        const auto liesInside = [&path](const std::string& place) {
            return isAtOrBelowPattern(path, place) &&
                   pathPieces(path).size() > pathPieces(place).size();
        };
        if (std::ranges::any_of(kept.profiles, liesInside) ||
            std::ranges::any_of(kept.neverSwept, liesInside))
            named.push_back(path);
    }
    return named;
}

const std::string* personalFolderOf(std::string_view path, const KeptEntries& kept) {
    const std::string* innermost = nullptr;
    for (const auto& folder : kept.personalFolders)
        if (isAtOrBelow(path, folder) && (!innermost || folder.size() > innermost->size()))
            innermost = &folder;
    return innermost;
}

}  // namespace tidewell
