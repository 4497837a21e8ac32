#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/value.h"

namespace tidewell {

/// The longest property list that is read, in bytes: real ones are a thousandth of it.
inline constexpr std::size_t propertyListLimit = 16 * 1024 * 1024;

/// Reads an XML or a binary property list. Absent for everything else, and for a list that is
/// damaged or hostile: cut short, cyclic, nested too deep, of impossible counts, or longer than
/// propertyListLimit. Never more than a few times the list's own length of memory. Any thread.
std::optional<Value> parsePropertyList(std::string_view bytes);

/// The same for a file, which must be a regular one.
std::optional<Value> readPropertyList(const std::string& path);

}  // namespace tidewell
