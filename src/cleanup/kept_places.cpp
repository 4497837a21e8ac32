#include "cleanup/kept_places.h"

#include <algorithm>
#include <utility>

#include "platform/files.h"
#include "platform/folder_walk.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

/// What a pattern stands for on the disk; one without stars stands for itself.
std::vector<std::string> existing(const std::string& pattern) {
    if (pattern.find('*') == std::string::npos) return {pattern};
    std::vector<std::string> paths = {""};
    for (const auto piece : pathPieces(pattern)) {
        std::vector<std::string> longer;
        for (const auto& path : paths) {
            if (!piece.ends_with('*')) {
                longer.push_back(joinPath(path, piece));
                continue;
            }
            const auto names = folderNames(resolvedPath(path).value_or(path));
            for (const auto& name : names.value_or(std::vector<std::string>{}))
                if (isNameOf(piece, name)) longer.push_back(joinPath(path, name));
        }
        paths = std::move(longer);
    }
    return paths;
}

}  // namespace

KeptPlaces::KeptPlaces(const Host& host, KeptEntries entries)
    : known_(std::move(entries)), home_(host.home) {
    addHolders(joinPath(home_, "."));
    for (const auto& folder : known_.personalFolders) keep(folder);
    for (const auto& profile : known_.profiles)
        for (const auto& entry : existing(profile)) keep(entry);
    for (const auto& key : known_.keys) {
        for (const auto& entry : existing(key)) {
            keep(entry);
            keepWhatIsLinkedIn(entry);
        }
    }
}

/// One that leads to the home folder or above it names nothing: all of it would have to stay.
void KeptPlaces::keep(const std::string& entry) {
    if (isSurelyMissing(entry)) return;
    addLocation(entry, entry);
    if (auto location = realLocation(entry)) addLocation(entry, *location);
    const auto target = resolvedPath(entry);
    if (!target && isEndUntold(entry)) isAllFound_ = false;
    if (!target || isAtOrBelow(home_, *target)) return;
    addLocation(entry, *target);
    if (const auto identity = identityOf(*target)) entriesByIdentity_.emplace(*identity, entry);
    for (const auto& place : mounts_.placesBelow(*target)) {
        const auto known = joinPath(entry, pathRelativeTo(place, *target));
        for (const auto& path : mounts_.otherPaths(place)) addLocation(known, path);
    }
    if (!mounts_.isKnown() && mountNumber(*target) != mountNumber(home_)) isAllOnOneMount_ = false;
}

/// Keys are linked from where programs look for them to where people keep them.
void KeptPlaces::keepWhatIsLinkedIn(const std::string& keyFolder) {
    const auto real = resolvedPath(keyFolder);
    if (!real) return;
    walkFolder(*real, HiddenEntries::visit, [&](const WalkEntry& entry) {
        if (entry.type == EntryType::link)
            keep(joinPath(keyFolder, pathRelativeTo(entry.path, *real)));
        return Descent::enter;
    });
}

void KeptPlaces::addLocation(std::string entry, const std::string& location) {
    for (const auto& path : mounts_.otherPaths(location)) {
        entries_.emplace(path, entry);
        addHolders(path);
    }
    addHolders(location);
    entries_.emplace(location, std::move(entry));
}

void KeptPlaces::addHolders(std::string_view location) {
    const auto folder = parentPath(location);
    if (folder.empty() || folder == "/" || holders_.contains(folder)) return;
    const auto [holder, isNew] =
        holders_.emplace(std::string(folder), identityOf(std::string(folder)));
    if (holder->second) holderIdentities_.insert(*holder->second);
    addHolders(folder);
}

std::vector<std::string> KeptPlaces::namesIn(const std::vector<std::string>& folder,
                                             std::string_view name) const {
    std::vector<std::string> names;
    for (const auto& above : folder) names.push_back(joinPath(above, name));
    std::vector<std::string> entries;
    for (const auto& path : names)
        for (auto [at, end] = entries_.equal_range(path); at != end; ++at)
            entries.push_back(at->second);
    if (const auto identity = identityOf(names.front()))
        for (auto [at, end] = entriesByIdentity_.equal_range(*identity); at != end; ++at)
            entries.push_back(at->second);
    for (auto& entry : entries)
        if (std::ranges::find(names, entry) == names.end()) names.push_back(std::move(entry));
    return names;
}

std::vector<std::string> KeptPlaces::namesOf(std::string_view real) const {
    std::vector<std::string> names;
    auto paths = mounts_.otherPaths(real);
    paths.emplace(paths.begin(), real);
    for (const auto& path : paths) {
        std::vector<std::string> found = {""};
        for (const auto piece : pathPieces(path)) found = namesIn(found, piece);
        std::ranges::move(found, std::back_inserter(names));
    }
    return names;
}

/// A mount has names that its folder's do not tell.
std::vector<std::string> KeptPlaces::namesOf(std::string_view real, FolderNames& known) const {
    const auto isMount = [real](const MountTable::Mount& mount) { return mount.place == real; };
    if (std::ranges::any_of(mounts_.mounts(), isMount)) return namesOf(real);
    const auto folder = parentPath(real);
    auto at = known.find(folder);
    if (at == known.end()) at = known.emplace(folder, namesOf(folder)).first;
    return namesIn(at->second, lastPathComponent(real));
}

bool KeptPlaces::mustStay(const std::vector<std::string>& names) const {
    const auto isOrHoldsSome = [&](const std::string& name) {
        return entries_.contains(name) || holders_.contains(name);
    };
    if (std::ranges::any_of(names, isOrHoldsSome)) return true;
    const auto identity = identityOf(names.front());
    return identity && holderIdentities_.contains(*identity);
}

bool KeptPlaces::isInKeys(const std::vector<std::string>& names) const {
    return std::ranges::any_of(names, [this](const auto& name) {
        return isAtOrBelowAny(name, known_.keys) || isAtOrBelowAny(name, known_.profiles);
    });
}

bool KeptPlaces::isPersonal(const std::vector<std::string>& names) const {
    return std::ranges::any_of(
        names, [this](const auto& name) { return personalFolderOf(name, known_) != nullptr; });
}

bool KeptPlaces::knowsNamesOf(const std::string& real) const {
    if (!isAllFound_) return false;
    if (mounts_.isKnown()) return true;
    const auto number = mountNumber(std::string(parentPath(real)));
    return isAllOnOneMount_ && number && number == mountNumber(home_);
}

}  // namespace tidewell
