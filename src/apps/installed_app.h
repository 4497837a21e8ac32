#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/byte_count.h"
#include "platform/files.h"

namespace tidewell {

/// An application found on disk.
struct InstalledApp {
    std::string id;    ///< the bundle identifier; the bundle's path if it has none
    std::string name;  ///< as people know it
    std::string url;   ///< the bundle's path
    std::optional<std::string> bundleID;
    std::optional<std::string> version;
    ByteCount sizeBytes = 0;
    std::optional<Date> lastUsed;  ///< absent if the system holds no date

    bool operator==(const InstalledApp&) const = default;
};

/// "Used 3 months ago", or that there is no record.
std::string lastUsedLabel(const InstalledApp& app, Date now);

/// How often 30 days have passed since the app was last used, never below 0. An app without a date
/// counts as idle for the longest time there is.
std::int64_t monthsIdle(const InstalledApp& app, Date now);

}  // namespace tidewell
