#pragma once

#include <string>

namespace tidewell::trash {

/// Brings the file up to date in which file managers remember the sizes of the folders in a Trash
/// of the desktop: lines of folders that are gone go, and `added`, if it is the name of a folder,
/// gets one. Where there is no such file none is made, and one that is a link, somebody else's or
/// too long is left alone. Readers see the old file or the new one, never a part. `trash`, `files`
/// and `info` are the Trash's open folders.
void updateDirectorySizes(int trash, int files, int info, const std::string& added = {});

}  // namespace tidewell::trash
