#pragma once

#include "platform/byte_count.h"

namespace tidewell {

struct MemoryUsage {
    ByteCount used = 0;  ///< what programs hold; cached files count as free
    ByteCount total = 0;
};

/// The machine's memory; `used` is 0 if it cannot be read. Any thread.
MemoryUsage memoryUsage();

}  // namespace tidewell
