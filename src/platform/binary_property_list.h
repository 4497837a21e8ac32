#pragma once

#include <optional>
#include <string_view>

#include "platform/value.h"

namespace tidewell {

/// What a binary property list begins with.
inline constexpr std::string_view binaryPropertyListMark = "bplist00";

/// The binary form of a property list. Absent for whatever else, and for a list whose objects
/// contain themselves, or share each other so often that the tree of them would be out of all
/// proportion to the list's length. Any thread.
std::optional<Value> parseBinaryPropertyList(std::string_view bytes);

}  // namespace tidewell
