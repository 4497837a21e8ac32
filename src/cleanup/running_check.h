#pragma once

#include <string>
#include <vector>

#include "cleanup/item_selection.h"
#include "platform/host.h"

namespace tidewell {

/// The names of the item's programs that run at this moment. Blocks; any thread but the main one.
std::vector<std::string> runningProgramsOf(const CleanupItem& item, const Host& host);

/// Writes into each item which of its programs run, and takes the tick from it if one does. Looks
/// once for all of them, and not at all if none has any.
void markRunning(CleanupItems& items, const Host& host);

}  // namespace tidewell
