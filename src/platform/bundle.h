#pragma once

#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/value.h"

namespace tidewell {

/// An application bundle as its Info dictionary describes it.
struct Bundle {
    Value info;                             ///< an object; null if there is no dictionary
    std::optional<std::string> identifier;  ///< "CFBundleIdentifier", if it is a text
};

/// Reads "Contents/Info.plist", else "Info.plist" if the first is missing. Absent if `path` is no
/// folder; a folder without a readable dictionary is a bundle with none. Any thread.
std::optional<Bundle> readBundle(const std::string& path);

/// When the user last opened the bundle, from the attribute that travels with it; absent if there
/// is none, if it is malformed, and for a link. Any thread.
std::optional<Date> lastUsedDate(const std::string& path);

}  // namespace tidewell
