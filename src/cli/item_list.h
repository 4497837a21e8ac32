#pragma once

#include <string_view>

#include "cleanup/item_selection.h"

namespace tidewell::cli {

/// What stands under a list that nobody has agreed to yet.
inline constexpr std::string_view justLookedLine =
    "Just looking: nothing was deleted. With --yes, what is picked (✓) is deleted for good.";

/// A row for each item: its tick, title, size and id, and under it what clearing it means.
void printItems(const CleanupItems& items);

}  // namespace tidewell::cli
