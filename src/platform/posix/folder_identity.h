#pragma once

#include <sys/stat.h>

#include <optional>

#include "platform/identity.h"

namespace tidewell::posix {

/// Of what is open.
inline std::optional<Identity> identityOf(int descriptor) {
    struct stat status;
    if (::fstat(descriptor, &status) != 0) return std::nullopt;
    return Identity{.device = static_cast<std::uint64_t>(status.st_dev), .inode = status.st_ino};
}

}  // namespace tidewell::posix
