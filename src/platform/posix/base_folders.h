#pragma once

#include <string>

#include "platform/host.h"

namespace tidewell::posix {

/// Where the base folders of a home are that nobody has moved.
BaseFolders usualBaseFolders(const std::string& home);

/// Those that the environment names, where they can be believed: absolute, really below the home
/// folder, and neither in a folder of the user's own nor in, above or at another base folder. For
/// any other value the usual folder holds.
BaseFolders baseFoldersOfEnvironment(const std::string& home, System system);

}  // namespace tidewell::posix
