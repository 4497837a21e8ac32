#pragma once

#include <optional>
#include <vector>

#include "platform/folder_walk.h"

namespace tidewell::posix {

/// What an open folder holds, without "." and "..", in the order of the file system. Only entries
/// whose type it does not tell are looked at one by one. The descriptor stays open, its position
/// is moved. Absent if the folder cannot be read.
std::optional<std::vector<FolderEntry>> listFolder(int folder);

}  // namespace tidewell::posix
