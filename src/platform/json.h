#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/value.h"

namespace tidewell {

/// Absent for what is not JSON, and for JSON nested deeper than 512. A number outside 64 bits
/// reads as null. Any thread.
std::optional<Value> parseJson(std::string_view bytes);

enum class JsonLayout { compact, indented };

/// Ill-formed UTF-8 is written with U+FFFD in the place of each ill-formed sequence; numbers that
/// are not finite as null. Any thread.
std::string writeJson(const Value& value, JsonLayout layout = JsonLayout::compact);

}  // namespace tidewell
