#pragma once

#include <cstdint>

namespace tidewell {

/// A count of bytes, never of blocks. Sizes of files are bytes allocated on disk, not lengths.
using ByteCount = std::int64_t;

/// The sum, which stays at the largest value instead of overflowing.
ByteCount addSaturating(ByteCount left, ByteCount right);

}  // namespace tidewell
