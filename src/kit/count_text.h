#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tidewell {

/// "1 simulator", "3 simulators", "0 simulators": plain digits and the noun, in the plural unless
/// the count is 1.
std::string countText(std::int64_t count, std::string_view noun);

}  // namespace tidewell
