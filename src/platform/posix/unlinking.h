#pragma once

namespace tidewell::posix {

/// Removes the entry of this name in an open folder, unless it is a folder. 0, or -1 with the
/// reason in errno: EISDIR for a folder, on every system.
int unlinkNoFolder(int place, const char* name);

}  // namespace tidewell::posix
