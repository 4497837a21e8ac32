#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/cleanup_view_model.h"

namespace tidewell {

// Every word and figure of the Clean tool's first screen (before and during a scan) and of its last
// (during and after a clean). Pure.

inline constexpr std::string_view allCleanTitle = "All clean!";
inline constexpr std::string_view cleaningTitle = "Cleaning";
inline constexpr std::string_view notCleanedTitle = "A few items wouldn't budge";

struct ScanContent {
    std::string_view caption;
    std::optional<std::string> soFar;  ///< "+2.5 GB so far", before a scan
    std::string percent;
    bool isScanning;
};

/// `totalFreedBytes` is the sum kept over all cleans.
ScanContent scanContent(const CleanupViewModel& model, ByteCount totalFreedBytes);

/// What to tell about titles that could not be removed; absent if there are none.
std::optional<std::string> failureNote(const std::vector<std::string>& failedTitles, System system);

struct CleanedContent {
    std::string percent;                     ///< while the clean runs
    std::optional<ByteCount> reclaimed;      ///< absent if nothing was freed
    std::string_view ringLine;               ///< "reclaimed" or "All done"
    std::string freeBefore;                  ///< "118 GB"
    std::string freeAfter;                   ///< "120 GB free"
    std::optional<std::string> failureNote;  ///< names what could not be removed
    bool isCleaning;
};

CleanedContent cleanedContent(const CleanupViewModel& model);

}  // namespace tidewell
