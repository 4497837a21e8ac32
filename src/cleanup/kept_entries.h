#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"
#include "platform/system.h"

namespace tidewell {

/// Whether a folder of a personal one counts as build output by its name alone, or only beside a
/// project's marker.
enum class BuildOutput { byName, besideMarker };

/// What must stay on machines of one system. Paths are relative to the home folder; "*" as a whole
/// component or at the end of one stands for anything.
struct KeptKnowledge {
    std::span<const std::string_view> keys;        ///< keys and credentials, with all below
    std::span<const std::string_view> profiles;    ///< the same, but for caches that a row names
    std::span<const std::string_view> neverSwept;  ///< names in a cache folder that only look so
    BuildOutput buildOutput;
};

const KeptKnowledge& keptKnowledge(System system);

/// What must stay on a machine, by the absolute paths under which the user knows it, whether
/// anything stands there or not. They may be patterns, as above.
struct KeptEntries {
    std::vector<std::string> personalFolders;  ///< may lose build output, and nothing else
    std::vector<std::string> keys;             ///< with all below them
    std::vector<std::string> profiles;         ///< with all below them but named caches
    std::vector<std::string> neverSwept;       ///< with all below them but what a row names
    std::vector<std::string> namedByRows;      ///< what those two exceptions let go, with all below
    BuildOutput buildOutput = BuildOutput::byName;
};

/// Which of some paths, as the catalogue's rows name them, lie inside a profile or a place that is
/// never swept: caches there that a row vouches for. Never such a profile or place itself.
std::vector<std::string> namedInside(const KeptEntries& kept,
                                     const std::vector<std::string>& paths);

/// Without what rows name. Reads from the disk which folders the user keeps his own files in; any
/// thread but the main one.
KeptEntries keptEntries(const Host& host);

// These look at the text of a standardised path alone.

/// Whether the path is one that the pattern stands for, or lies below one.
bool isAtOrBelowPattern(std::string_view path, std::string_view pattern);
bool isAtOrBelowAny(std::string_view path, const std::vector<std::string>& patterns);

/// Whether a pattern stands for the name of one entry.
bool isNameOf(std::string_view pattern, std::string_view name);

/// The personal folder at or above a path, the innermost; null if it lies in none.
const std::string* personalFolderOf(std::string_view path, const KeptEntries& kept);

}  // namespace tidewell
