#pragma once

#include <string>

#include "platform/byte_count.h"

namespace tidewell {

/// "2.5 MB", "Zero KB", "1 byte": decimal units as file lists show sizes, with no fraction for KB,
/// one digit at most for MB and two above, rounded half to even. Negative counts show as 0.
std::string byteText(ByteCount bytes);

}  // namespace tidewell
