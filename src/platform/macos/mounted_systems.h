#pragma once

#include <sys/mount.h>
#include <sys/param.h>

#include <string>
#include <vector>

namespace tidewell::macos_system {

/// The mounted file systems as the kernel lists them, in the order of their mounting. Asks nothing
/// of the file systems themselves. Any thread.
std::vector<struct statfs> mountedSystems();

/// Which no other mount has.
std::string numberOf(const struct statfs& system);

}  // namespace tidewell::macos_system
