#include "cleanup/project_artifacts.h"

#include <algorithm>
#include <map>
#include <ranges>

#include "cleanup/artifacts/names.h"
#include "cleanup/kept_entries.h"
#include "cleanup/table_paths.h"
#include "platform/collation.h"
#include "platform/files.h"
#include "platform/folder_walk.h"
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

template <class Names>
bool holdsMarker(const Names& entries, const ArtifactNames& names) {
    return std::ranges::any_of(
        entries, [&](std::string_view entry) { return isProjectMarker(entry, names); });
}

std::string_view noteFor(std::string_view name, const ArtifactNames& names) {
    const auto row = std::ranges::find(names.notes, name, &ArtifactNote::name);
    return row == names.notes.end() ? otherArtifactNote : row->note;
}

bool isSkippedInHome(std::string_view name, const ArtifactNames& names) {
    return name.starts_with('.') || contains(names.skippedInHome, name);
}

/// What is known when folders are told to be artifacts.
struct ArtifactRules {
    ArtifactNames names;
    const KeptEntries& kept;
};

enum class Met { artifact, mayHoldSome, holdsNone };

/// Whether a folder is an artifact: by its name alone, or for "build", "target" and what else
/// people use such names for, and where the rule says so for all, by a project's marker beside it.
template <class IsMarked>
bool isArtifact(std::string_view name, BuildOutput rule, const ArtifactNames& names,
                const IsMarked& isMarked) {
    if (isArtifactFolderName(name) && rule == BuildOutput::byName) return true;
    const auto isPattern = [name](std::string_view piece) { return standsFor(piece, name); };
    // The guard knows the names that all systems share, and no others, in the user's own folders.
    const bool countsInProjects =
        isArtifactFolderName(name) || isBuildFolderName(name) ||
        (rule == BuildOutput::byName && std::ranges::any_of(names.besideMarker, isPattern));
    return countsInProjects && isMarked();
}

/// What a folder is to the search, met at this level below the home folder. Asks whether there is a
/// marker beside it where that counts.
template <class IsMarked>
Met met(std::string_view path, int level, const ArtifactRules& rules, const IsMarked& isMarked) {
    const auto name = lastPathComponent(path);
    if (level == 1 && isSkippedInHome(name, rules.names)) return Met::holdsNone;
    if (level >= artifactWalkDepth) return Met::holdsNone;
    const bool isPersonal = personalFolderOf(path, rules.kept) != nullptr;
    const auto rule = isPersonal ? rules.kept.buildOutput : BuildOutput::byName;
    if (isArtifact(name, rule, rules.names, isMarked)) return Met::artifact;
    if (isArtifactFolderName(name)) return Met::holdsNone;
    const bool isDeepest = level == artifactWalkDepth - 1;
    return name.starts_with('.') || isDeepest ? Met::holdsNone : Met::mayHoldSome;
}

using PathsByName = std::map<std::string, std::vector<std::string>, std::less<>>;

PathsByName artifactPaths(const Host& host) {
    const auto kept = keptEntries(host);
    const ArtifactRules rules{artifactNames(host.system), kept};
    PathsByName found;
    walkFolder(host.home, HiddenEntries::visit, [&](const WalkEntry& entry) {
        if (entry.type != EntryType::folder) return Descent::skip;
        const auto what = met(entry.path, entry.level, rules, [&] {
            return holdsMarker(entry.siblings | std::views::transform(&FolderEntry::name),
                               rules.names);
        });
        if (what == Met::artifact) found[std::string(entry.name)].emplace_back(entry.path);
        return what == Met::mayHoldSome ? Descent::enter : Descent::skip;
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

bool isProvenBuildOutput(std::string_view path, const KeptEntries& kept, System system) {
    const auto* personal = personalFolderOf(path, kept);
    if (!personal || kept.buildOutput == BuildOutput::byName) return true;
    const auto known = artifactNames(system);
    auto folder = *personal;
    for (const auto piece : pathPieces(pathRelativeTo(path, *personal))) {
        const bool isArtifact = isArtifactFolderName(piece);
        if (isArtifact || isBuildFolderName(piece)) {
            const auto names = folderNames(resolvedPath(folder).value_or(folder));
            if (names && holdsMarker(*names, known)) return true;
            // What lies deeper belongs to something that the user keeps.
            if (isArtifact) return false;
        }
        folder = joinPath(folder, piece);
    }
    return false;
}

std::optional<CleanupTarget> artifactHolding(std::string_view path, const Host& host,
                                             const KeptEntries& kept) {
    if (!isBelow(path, host.home)) return std::nullopt;
    const ArtifactRules rules{artifactNames(host.system), kept};
    std::string folder = host.home;
    int level = 0;
    for (const auto name : pathPieces(pathRelativeTo(path, host.home))) {
        const auto here = joinPath(folder, name);
        const auto what = met(here, ++level, rules, [&] {
            return holdsMarker(folderNames(folder).value_or(std::vector<std::string>{}),
                               rules.names);
        });
        if (what == Met::artifact) return artifactTarget(name, here, host);
        if (what == Met::holdsNone) break;
        folder = here;
    }
    return std::nullopt;
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
