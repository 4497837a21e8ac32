#pragma once

#include <vector>

#include "platform/running_applications.h"

namespace tidewell::linux_system {

/// The user's applications on a machine whose programs tell of themselves by desktop entries, in
/// the order of their start, each with all its processes. Below a root other than "/" only
/// processes count whose executable lies there.
std::vector<RunningApplication> desktopApplications(const Host& host);

}  // namespace tidewell::linux_system
