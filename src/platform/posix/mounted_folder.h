#pragma once

#include <cstdint>
#include <optional>

#include "platform/identity.h"

namespace tidewell::posix {

/// Which folder it is, and the mount through which it was reached.
struct MountedFolder {
    Identity folder;
    std::uint64_t mount;  ///< 0 where the system does not tell mounts apart

    friend bool operator==(const MountedFolder&, const MountedFolder&) = default;
};

/// Of an open folder, or of the entry of this name in it, which may be a link. Absent if the system
/// does not tell.
std::optional<MountedFolder> mountedFolder(int descriptor);
std::optional<MountedFolder> mountedFolder(int descriptor, const char* name);

}  // namespace tidewell::posix
