#pragma once

#include <vector>

#include "platform/running_applications.h"

namespace tidewell::posix {

/// The user's applications on a machine whose programs are bundles, in the order of their start,
/// known by the executables that run: one for each bundle below the host's root, and, if the root
/// is
/// "/", one for each installed desktop entry. Any thread.
std::vector<RunningApplication> bundleApplications(const Host& host);

}  // namespace tidewell::posix
