#include "cleanup/project_artifacts.h"

#include <algorithm>
#include <array>
#include <map>

#include "platform/collation.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

/// Each marks the folder that holds it as a project.
constexpr std::array<std::string_view, 15> projectMarkerFiles = {
    "package.json", "Cargo.toml",       "pubspec.yaml",    "CMakeLists.txt",   "Makefile",
    "go.mod",       "pyproject.toml",   "setup.py",        "requirements.txt", "gradlew",
    "build.gradle", "build.gradle.kts", "settings.gradle", "mix.exs",          "Package.swift",
};

/// Folders directly in the home folder that hold no projects.
constexpr std::array<std::string_view, 7> artifactWalkSkips = {
    "Library", "Applications", "Movies", "Music", "Pictures", "Public", "Sites",
};

struct ArtifactNote {
    std::string_view name;
    std::string_view note;
};

constexpr auto artifactNotes = std::to_array<ArtifactNote>({
    {"node_modules", "JavaScript dependencies. Re-created by npm / yarn / pnpm install"},
    {"Pods", "CocoaPods dependencies. Re-created by pod install"},
    {"DerivedData", "Xcode build output. Re-created on the next build"},
    {".build", "Swift package build output. Re-created by the next build"},
    {".dart_tool", "Dart/Flutter tooling cache. Re-created by pub get"},
    {".next", "Next.js build output. Re-created by the next build"},
    {".nuxt", "Nuxt build output. Re-created by the next build"},
    {".gradle", "Gradle project cache. Re-created on the next build"},
    {".venv", "Python virtual environment. Re-created from requirements"},
    {"venv", "Python virtual environment. Re-created from requirements"},
    {"__pycache__", "Python bytecode cache. Re-created automatically"},
    {".terraform", "Terraform providers. Re-created by terraform init"},
    {"build", "Build output. Re-created by the next build"},
    {"target", "Build output. Re-created by the next build"},
});

constexpr std::string_view otherArtifactNote = "Build artifact. Re-created on the next build";

/// The first level at which nothing is looked at any more.
constexpr int artifactWalkDepth = 8;

bool contains(std::span<const std::string_view> names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

bool isProjectMarker(std::string_view name) {
    return contains(projectMarkerFiles, name) || name.ends_with(".xcodeproj");
}

std::string_view noteFor(std::string_view name) {
    const auto row = std::ranges::find(artifactNotes, name, &ArtifactNote::name);
    return row == artifactNotes.end() ? otherArtifactNote : row->note;
}

bool isSkippedInHome(std::string_view name) {
    return name.starts_with('.') || contains(artifactWalkSkips, name);
}

using PathsByName = std::map<std::string, std::vector<std::string>, std::less<>>;

PathsByName artifactPaths(const Host& host) {
    PathsByName found;
    const auto kept = keptEntries(host);
    walkFolder(host.home, HiddenEntries::visit, [&found, &kept](const WalkEntry& entry) {
        if (entry.type != EntryType::folder) return Descent::skip;
        if (entry.level == 1 && isSkippedInHome(entry.name)) return Descent::skip;
        if (entry.level >= artifactWalkDepth) return Descent::skip;
        const bool isPersonal = personalFolderOf(entry.path, kept) != nullptr;
        const auto rule = isPersonal ? kept.buildOutput : BuildOutput::byName;
        if (isProjectArtifact(entry.name, entry.siblings, rule)) {
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

bool isProjectArtifact(std::string_view name, std::span<const FolderEntry> siblings,
                       BuildOutput rule) {
    if (isArtifactFolderName(name) && rule == BuildOutput::byName) return true;
    if (!isArtifactFolderName(name) && !isBuildFolderName(name)) return false;
    return std::ranges::any_of(siblings, isProjectMarker, &FolderEntry::name);
}

bool isProvenBuildOutput(std::string_view path, const KeptEntries& kept) {
    const auto* personal = personalFolderOf(path, kept);
    if (!personal || kept.buildOutput == BuildOutput::byName) return true;
    auto folder = *personal;
    for (const auto piece : pathPieces(pathRelativeTo(path, *personal))) {
        const bool isArtifact = isArtifactFolderName(piece);
        if (isArtifact || isBuildFolderName(piece)) {
            const auto names = folderNames(resolvedPath(folder).value_or(folder));
            if (names && std::ranges::any_of(*names, isProjectMarker)) return true;
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
        .detail = std::string(noteFor(name)) + ". In " + std::string(location) + ".",
        .category = CleanupCategory::developerCaches,
        .safety = isBuildFolderName(name) ? SafetyLevel::caution : SafetyLevel::safe,
        .paths = {std::string(path)},
        .kind = TargetKind::plain,
    };
}

}  // namespace tidewell
