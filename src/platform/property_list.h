#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/value.h"

namespace tidewell {

/// The longest property list that is read, in bytes: real ones are a thousandth of it.
inline constexpr std::size_t propertyListLimit = 16 * 1024 * 1024;

/// How deep lists and dictionaries may stand in each other.
inline constexpr std::size_t propertyListDepthLimit = 128;

/// Reads an XML or a binary property list. Absent for everything else, and for a list that is
/// damaged or hostile: cut short, cyclic, nested too deep, of impossible counts, or longer than
/// propertyListLimit. Time and memory are in proportion to the list's length. Dates, data and
/// numbers beyond 64 bits read as null. Any thread.
std::optional<Value> parsePropertyList(std::string_view bytes);

/// The same for a file, which must be a regular one.
std::optional<Value> readPropertyList(const std::string& path);

}  // namespace tidewell
