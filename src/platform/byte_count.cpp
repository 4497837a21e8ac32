#include "platform/byte_count.h"

#include <limits>

namespace tidewell {

ByteCount addSaturating(ByteCount left, ByteCount right) {
    using Limits = std::numeric_limits<ByteCount>;
    if (right > 0 && left > Limits::max() - right) return Limits::max();
    if (right < 0 && left < Limits::min() - right) return Limits::min();
    return left + right;
}

}  // namespace tidewell
