#pragma once

#include <memory>

#include "platform/linux/folder_chain.h"
#include "platform/linux/name_list.h"
#include "platform/posix/descriptor.h"

namespace tidewell::linux_system {

/// What is left to be measured of one folder. A folder's work may be split among threads; only one
/// part of it reads on.
struct FolderWork {
    FolderChain place;
    /// Null while the folder is let go, which it may be only when it has been read to its end.
    std::shared_ptr<const posix::Descriptor> descriptor;
    NameList files = {};       ///< regular files met and not yet measured
    NameList subfolders = {};  ///< folders met and not yet entered
    bool isUnread = false;     ///< whether the descriptor stands before entries not yet met

    bool isDone() const { return files.isEmpty() && subfolders.isEmpty() && !isUnread; }

    /// A part of the same folder with nothing to do yet.
    FolderWork emptyPart() const { return {.place = place, .descriptor = descriptor}; }
};

}  // namespace tidewell::linux_system
