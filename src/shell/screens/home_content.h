#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/byte_count.h"
#include "platform/files.h"
#include "shell/mode.h"
#include "shell/smart_scan_controller.h"

namespace tidewell {

// Every word, figure and condition of the Home screen. Pure.

inline constexpr std::string_view accessBannerTitle = "Turn on Full Disk Access";
inline constexpr std::string_view accessBannerLine =
    "macOS hides some junk until you allow access. Flip it on in Settings and Tidewell picks it up "
    "automatically.";

/// What the screen shows beside the tools' results.
struct HomeReadings {
    System system = System::macOS;  ///< of the machine
    ByteCount freeBytes = 0;        ///< of the home folder's volume, as is the next
    ByteCount volumeBytes = 0;
    bool asksForAccess = false;
    ByteCount totalFreedBytes = 0;  ///< the sum kept over all cleans
    double lastCleanupAt = 0;       ///< in seconds since 1970; 0 if there was none
};

/// When the last clean ended, from what is stored; absent if there was none.
std::optional<Date> lastCleanupDate(double lastCleanupAt);

struct StatCellContent {
    std::string_view label;
    std::string value;

    bool operator==(const StatCellContent&) const = default;
};

/// A tool's card with its latest result. A tap opens the section.
struct HomeToolContent {
    Mode section = Mode::clean;
    std::string_view symbol;
    std::string_view title;
    std::string_view description;  ///< two lines
    std::string value;

    bool operator==(const HomeToolContent&) const = default;
};

struct HomeContent {
    bool showsSmartScan = false;  ///< its screen stands in the place of all that follows
    bool showsAccessBanner = false;
    ByteCount freeBytes = 0;  ///< a figure that counts up
    double usedFraction = 0;
    std::string usedPercent;
    std::vector<StatCellContent> stats;
    std::string winnings;
    std::array<HomeToolContent, SmartScanController::allTools.size()> tools;
    std::string lastCleanup;
    std::string nextScan;
};

HomeContent homeContent(const SmartScanController& smartScan, const HomeReadings& readings,
                        Date now);

}  // namespace tidewell
