#pragma once

#include <span>
#include <string_view>

#include "platform/system.h"

namespace tidewell {

struct ArtifactNote {
    std::string_view name;
    std::string_view note;
};

/// What is known of projects on one system's machines, beside the names that all of them share.
struct ArtifactNames {
    /// Component patterns of folders that count beside a project's marker, and are made again as
    /// surely as those that count anywhere.
    std::span<const std::string_view> besideMarker;
    std::span<const std::string_view> markers;  ///< files, each of which marks its folder
    std::span<const std::string_view> skippedInHome;
    std::span<const ArtifactNote> notes;
};

ArtifactNames artifactNames(System system);

ArtifactNames macOSArtifactNames();
ArtifactNames linuxArtifactNames();

}  // namespace tidewell
