#pragma once

#include <string>
#include <vector>

#include "platform/host.h"

namespace tidewell {

/// The folders whose entries the deep scan lists, each once. Looks at the disk.
std::vector<std::string> walkRoots(const Host& host);

/// Folders that the walk meets and that other parts of the program answer for: a container's disks,
/// the Trash.
std::vector<std::string> walkExclusions(const Host& host);

}  // namespace tidewell
