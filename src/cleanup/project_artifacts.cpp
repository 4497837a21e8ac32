#include "cleanup/project_artifacts.h"

#include <algorithm>
#include <map>

#include "cleanup/artifacts/names.h"
#include "cleanup/kept_entries.h"
#include "cleanup/table_paths.h"
#include "platform/collation.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::string_view otherArtifactNote = "Build artifact. Re-created on the next build";

/// The first level at which nothing is looked at any more.
constexpr int artifactWalkDepth = 8;

bool contains(std::span<const std::string_view> names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

bool isProjectMarker(std::string_view name, const ArtifactNames& names) {
    return contains(names.markers, name) || name.ends_with(".xcodeproj");
}

bool holdsMarker(std::span<const FolderEntry> entries, const ArtifactNames& names) {
    return std::ranges::any_of(
        entries, [&names](const auto& entry) { return isProjectMarker(entry.name, names); });
}

std::string_view noteFor(std::string_view name, const ArtifactNames& names) {
    const auto row = std::ranges::find(names.notes, name, &ArtifactNote::name);
    return row == names.notes.end() ? otherArtifactNote : row->note;
}

bool isSkippedInHome(std::string_view name, const ArtifactNames& names) {
    return name.starts_with('.') || contains(names.skippedInHome, name);
}

using PathsByName = std::map<std::string, std::vector<std::string>, std::less<>>;

PathsByName artifactPaths(const Host& host) {
    const auto names = artifactNames(host.system);
    const auto kept = keptEntries(host);
    PathsByName found;
    walkFolder(host.home, HiddenEntries::visit, [&](const WalkEntry& entry) {
        if (entry.type != EntryType::folder) return Descent::skip;
        if (entry.level == 1 && isSkippedInHome(entry.name, names)) return Descent::skip;
        if (entry.level >= artifactWalkDepth) return Descent::skip;
        const bool isPersonal = personalFolderOf(entry.path, kept) != nullptr;
        const auto rule = isPersonal ? kept.buildOutput : BuildOutput::byName;
        if (isProjectArtifact(entry.name, entry.siblings, host.system, rule)) {
            found[std::string(entry.name)].emplace_back(entry.path);
            return Descent::skip;
        }
        if (isArtifactFolderName(entry.name)) return Descent::skip;
        const bool holdsNothing = entry.level == artifactWalkDepth - 1;
        return entry.name.starts_with('.') || holdsNothing ? Descent::skip : Descent::enter;
    });
    return found;
}

}  // namespace

std::vector<CleanupTarget> findProjectArtifacts(const Host& host) {
    auto found = artifactPaths(host);
    std::vector<std::string_view> names;
    for (const auto& [name, paths] : found) names.push_back(name);
    std::ranges::stable_sort(names, [](std::string_view left, std::string_view right) {
        return compareForPeople(left, right) < 0;
    });
    std::vector<CleanupTarget> targets;
    for (const auto name : names) {
        auto& paths = found.find(name)->second;
        std::ranges::sort(paths);
        for (const auto& path : paths) targets.push_back(artifactTarget(name, path, host));
    }
    return targets;
}

bool isProjectArtifact(std::string_view name, std::span<const FolderEntry> siblings, System system,
                       BuildOutput rule) {
    if (isArtifactFolderName(name) && rule == BuildOutput::byName) return true;
    const auto names = artifactNames(system);
    const auto isPattern = [name](std::string_view piece) { return standsFor(piece, name); };
    // The guard knows the names that all systems share, and no others, in the user's own folders.
    const bool countsInProjects =
        isArtifactFolderName(name) || isBuildFolderName(name) ||
        (rule == BuildOutput::byName && std::ranges::any_of(names.besideMarker, isPattern));
    return countsInProjects && holdsMarker(siblings, names);
}

bool isProvenBuildOutput(std::string_view path, const KeptEntries& kept, System system) {
    const auto* personal = personalFolderOf(path, kept);
    if (!personal || kept.buildOutput == BuildOutput::byName) return true;
    const auto known = artifactNames(system);
    auto folder = *personal;
    for (const auto piece : pathPieces(pathRelativeTo(path, *personal))) {
        const bool isArtifact = isArtifactFolderName(piece);
        if (isArtifact || isBuildFolderName(piece)) {
            const auto names = folderNames(resolvedPath(folder).value_or(folder));
            const auto isMarker = [&known](const auto& name) {
                return isProjectMarker(name, known);
            };
            if (names && std::ranges::any_of(*names, isMarker)) return true;
            // What lies deeper belongs to something that the user keeps.
            if (isArtifact) return false;
        }
        folder = joinPath(folder, piece);
    }
    return false;
}

CleanupTarget artifactTarget(std::string_view name, std::string_view path, const Host& host) {
    const auto parent = parentPath(path);
    const auto location = host.relativeToHome(parent);
    return {
        .id = "artifact:" + std::string(name) + ":" + std::string(path),
        .title = std::string(name) + " · " + std::string(lastPathComponent(parent)),
        .detail = std::string(noteFor(name, artifactNames(host.system))) + ". In " +
                  std::string(location) + ".",
        .category = CleanupCategory::developerCaches,
        .safety = isBuildFolderName(name) ? SafetyLevel::caution : SafetyLevel::safe,
        .paths = {std::string(path)},
        .kind = TargetKind::plain,
    };
}

}  // namespace tidewell
