#include "cleanup/artifacts/names.h"

namespace tidewell {

ArtifactNames artifactNames(System system) {
    switch (system) {
        case System::macOS:
            return macOSArtifactNames();
        case System::linux:
            return linuxArtifactNames();
    }
    return {};
}

}  // namespace tidewell
