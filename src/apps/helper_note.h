#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tidewell {

/// Why an application is rarely opened, for those that are not meant to be: such a helper must not
/// look forgotten. Absent for all others.
std::optional<std::string_view> helperNote(std::string_view name,
                                           const std::optional<std::string>& bundleID);

}  // namespace tidewell
