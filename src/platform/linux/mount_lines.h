#pragma once

#include <string_view>
#include <vector>

#include "platform/mount_table.h"

namespace tidewell::linux_system {

/// Reads the lines of "mountinfo"; a damaged line is passed over.
std::vector<MountTable::Mount> mountsOfLines(std::string_view lines);

}  // namespace tidewell::linux_system
