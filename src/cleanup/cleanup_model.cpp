#include "cleanup/cleanup_model.h"

#include <algorithm>

namespace tidewell {

std::string_view title(CleanupCategory category) {
    switch (category) {
        case CleanupCategory::developerCaches:
            return "Developer Caches";
        case CleanupCategory::aiCaches:
            return "AI Caches";
        case CleanupCategory::appCaches:
            return "App Caches";
        case CleanupCategory::system:
            return "System";
    }
    return {};
}

bool isArtifactFolderName(std::string_view name) {
    return std::ranges::find(artifactFolderNames, name) != artifactFolderNames.end();
}

bool isBuildFolderName(std::string_view name) {
    return std::ranges::find(buildFolderNames, name) != buildFolderNames.end();
}

}  // namespace tidewell
