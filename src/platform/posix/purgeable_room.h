#pragma once

#include <optional>
#include <string>

#include "platform/byte_count.h"

namespace tidewell::posix {

/// The room on a volume, with what the system would clear by itself for the user; absent where no
/// system does that, and where it does not tell.
std::optional<ByteCount> roomWithPurgeable(const std::string& path);

}  // namespace tidewell::posix
