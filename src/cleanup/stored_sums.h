#pragma once

#include <string_view>

namespace tidewell {

// Where the user defaults keep what all cleans have done together.

/// Bytes freed by the Clean tool and by Dev Mode, an integer.
inline constexpr std::string_view totalFreedBytesKey = "totalFreedBytes";
/// The end of the Clean tool's last clean, in seconds since 1970; 0 if there was none.
inline constexpr std::string_view lastCleanupAtKey = "lastCleanupAt";

}  // namespace tidewell
