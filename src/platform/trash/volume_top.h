#pragma once

#include <string>

#include "platform/posix/descriptor.h"

namespace tidewell::trash {

/// The topmost folder of a volume, as far as the machine reaches.
struct VolumeTop {
    std::string path;
    posix::Descriptor folder;  ///< converts to false if there is none
};

/// The highest folder at or above `folder`, which lies at the real path, in which things could be
/// moved to it: the same mount and, where a mount has parts with numbers of their own, the same
/// part. Never above `root`.
VolumeTop topOfVolume(const std::string& path, int folder, const std::string& root);

}  // namespace tidewell::trash
