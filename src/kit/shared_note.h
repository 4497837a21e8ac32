#pragma once

#include <string>

#include "platform/byte_count.h"

namespace tidewell {

/// " 1.2 GB more is shared with other files and would stay.": to go behind what is said of
/// something whose removal frees so much; empty if less than a tenth of it is shared.
std::string sharedNote(ByteCount freed, ByteCount shared);

}  // namespace tidewell
