#pragma once

#include <optional>
#include <string>

#include "platform/byte_count.h"

namespace tidewell {

struct VolumeCapacity {
    ByteCount available = 0;  ///< what the user can still write
    ByteCount total = 0;
};

/// The volume that holds `path`; absent if it cannot be read. Any thread.
std::optional<VolumeCapacity> volumeCapacity(const std::string& path);

}  // namespace tidewell
