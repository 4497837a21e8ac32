#pragma once

#include "cleanup/item_selection.h"

namespace tidewell::cli {

/// A row for each item: its tick, title, size and id, and under it what clearing it means.
void printItems(const CleanupItems& items);

}  // namespace tidewell::cli
