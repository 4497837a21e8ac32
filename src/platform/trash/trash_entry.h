#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/trash.h"

namespace tidewell::trash {

/// What is known of an entry by itself: its name, what it is, and when it was last moved or changed
/// in any other way. Absent, with the reason in errno, if there is none.
std::optional<TrashedItem> trashEntry(int folder, const std::string& name);

/// What an open folder holds, in ascending byte order; nothing if it cannot be read.
std::vector<std::string> sortedNames(int folder);

/// How long a name may be there, in bytes.
std::size_t longestNameIn(int folder);

}  // namespace tidewell::trash
