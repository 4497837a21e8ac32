#pragma once

#include <optional>
#include <string_view>

namespace tidewell {

/// The scheme of the URLs that the desktop hands to this program.
inline constexpr std::string_view urlScheme = "tidewell";

/// "scan" of "tidewell://scan", and of that with a path, a query or a fragment behind it. Absent
/// for every other scheme and for a URL without a host. A scheme is the same in any letter case.
std::optional<std::string_view> urlHost(std::string_view url);

}  // namespace tidewell
