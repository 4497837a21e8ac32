#pragma once

#include <functional>

#include "platform/byte_count.h"

namespace tidewell {

/// What `bytesOf` gives for all elements together, which stays at the largest value instead of
/// overflowing.
template <class Range, class BytesOf = std::identity>
ByteCount sumOf(const Range& range, BytesOf bytesOf = {}) {
    ByteCount sum = 0;
    for (const auto& element : range) sum = addSaturating(sum, std::invoke(bytesOf, element));
    return sum;
}

}  // namespace tidewell
