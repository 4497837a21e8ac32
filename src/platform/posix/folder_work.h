#pragma once

#include "platform/posix/name_list.h"
#include "platform/posix/tree_folder.h"

namespace tidewell::posix {

/// What is left to be measured of one folder. A folder's work may be split among threads; only one
/// part of it reads on.
template <class TreeFolder>
struct FolderWork {
    using Folder = TreeFolder;

    FolderPointer<TreeFolder> folder;
    OpenFolder descriptor;
    NameList files = {};       ///< regular files met and not yet measured
    NameList subfolders = {};  ///< folders met and not yet entered
    bool isUnread = false;     ///< whether the descriptor stands before entries not yet met

    bool isDone() const { return files.isEmpty() && subfolders.isEmpty() && !isUnread; }
    /// Where a reading stopped would be lost with the descriptor.
    bool canBeLetGo() const { return !isUnread; }

    /// A part of the same folder with nothing to do yet.
    FolderWork emptyPart() const { return {.folder = folder, .descriptor = descriptor}; }
};

}  // namespace tidewell::posix
