#pragma once

#include <vector>

#include "advisor/advisor_service.h"
#include "advisor/finding.h"

namespace tidewell {

/// What a scan of the Advisor found, less what its actions have removed since.
struct Findings {
    std::vector<SimRuntime> runtimes;
    std::int64_t unavailableSims = 0;
    std::int64_t snapshotCount = 0;
    ByteCount dockerBytes = 0;
    std::vector<Finding> probed = {};  ///< of machines that have none of the above
};

/// What the system's own tools and folders tell on a machine, by its system. Blocks for as long as
/// the tools do; any thread but the main one.
Findings gatherFindings(const Host& host);

/// All of it as values, in the order in which they are shown. Pure.
std::vector<Finding> listed(const Findings& found);

// Ids of findings that have an action or rows of their own.
inline constexpr std::string_view runtimesFinding = "runtimes";
inline constexpr std::string_view unavailableSimsFinding = "unavailable-sims";
inline constexpr std::string_view snapshotsFinding = "snapshots";

}  // namespace tidewell
