#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/catalogue/program.h"
#include "platform/disk_usage.h"

namespace tidewell {

/// What clearing a target can cost the user.
enum class SafetyLevel {
    safe,     ///< regenerated without help; ticked after a scan
    caution,  ///< can cost the user something; never ticked by default
};

/// The groups of the review, in the order in which they are shown.
enum class CleanupCategory { developerCaches, aiCaches, appCaches, system };

inline constexpr std::array allCleanupCategories = {
    CleanupCategory::developerCaches,
    CleanupCategory::aiCaches,
    CleanupCategory::appCaches,
    CleanupCategory::system,
};

/// The display title, which is also the category's name outside the program.
std::string_view title(CleanupCategory category);

/// What a target stands for at its paths.
enum class TargetKind {
    plain,        ///< each of them as a whole
    trash,        ///< the same, and the user's Trashes on other disks
    sweep,        ///< the entries of a shared folder that no other target claims
    taggedSweep,  ///< those of them that a CACHEDIR.TAG says to be caches
};

constexpr bool isSweep(TargetKind kind) {
    return kind == TargetKind::sweep || kind == TargetKind::taggedSweep;
}

/// Whose work a target's paths may be, beside the programs that it names.
enum class PathUsers { unknown, applicationOfPath };

/// One thing that the program knows how to clean, described without looking at the disk.
struct CleanupTarget {
    std::string id;  ///< "xcode-derived-data", or "artifact:{name}:{path}"
    std::string title;
    std::string detail;  ///< what it is and what clearing it means
    CleanupCategory category = CleanupCategory::developerCaches;
    SafetyLevel safety = SafetyLevel::safe;
    std::vector<std::string> paths;  ///< table paths, see cleanup/table_paths.h
    TargetKind kind = TargetKind::plain;
    std::span<const Program> programs = {};  ///< whose work it may be while they run
    PathUsers users = PathUsers::unknown;
    std::string_view devGroup = {};  ///< Dev Mode's group; empty where the words tell it

    bool isSweep() const { return tidewell::isSweep(kind); }
    bool hasPrograms() const { return !programs.empty() || users != PathUsers::unknown; }
};

/// A target that was measured on this machine and found to hold something.
struct CleanupItem {
    CleanupTarget target;
    std::vector<std::string> resolvedPaths;  ///< what cleaning works on; never empty after a scan
    std::vector<DiskUsage> measures = {};    ///< of each of them, as the scan saw it
    ByteCount sizeBytes =
        0;  ///< what removing them frees; at least 1 after a scan, with what is shared
    ByteCount sharedBytes = 0;  ///< what would stay, since files in there have names elsewhere
    bool isSelected = false;    ///< the user's tick
    std::vector<std::string> runningPrograms = {};  ///< of the target's, those that the scan saw

    bool isInUse() const { return !runningPrograms.empty(); }
};

/// Names of folders that are an artifact wherever they stand.
inline constexpr std::array<std::string_view, 19> artifactFolderNames = {
    "node_modules", "Pods",     "DerivedData", ".build",        ".dart_tool",
    ".next",        ".nuxt",    ".gradle",     ".cxx",          ".venv",
    "venv",         ".tox",     ".mypy_cache", ".pytest_cache", "__pycache__",
    ".terraform",   ".angular", ".turbo",      ".parcel-cache",
};

/// Names that count inside a project only, since people use them for folders of their own too.
inline constexpr std::array<std::string_view, 2> buildFolderNames = {"build", "target"};

bool isArtifactFolderName(std::string_view name);
bool isBuildFolderName(std::string_view name);

}  // namespace tidewell
