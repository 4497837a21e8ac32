#pragma once

#include <optional>
#include <string_view>

#include "platform/value.h"

namespace tidewell {

/// The XML form of a property list, in any encoding that its declaration or byte order mark names.
/// Absent for whatever else, and for a document that declares anything of its own, as the bombs
/// made of entities must. Takes time and memory in proportion to the length. Any thread.
std::optional<Value> parseXmlPropertyList(std::string_view bytes);

}  // namespace tidewell
