#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "apps/installed_app.h"

namespace tidewell {

/// How the user wants the applications listed, in the order of the menu.
enum class SortOrder { leastUsed, largest, name };

inline constexpr std::array allSortOrders = {SortOrder::leastUsed, SortOrder::largest,
                                             SortOrder::name};

/// The menu's label, which is also the order's name outside the program.
std::string_view rawText(SortOrder order);

/// The applications in the given order; ties keep the order that they came in. "Least used" goes
/// by months of 30 days and within a month by size, so that what is big and forgotten comes first.
std::vector<InstalledApp> sorted(std::vector<InstalledApp> apps, SortOrder order, Date now);

}  // namespace tidewell
