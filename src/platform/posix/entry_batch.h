#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/posix/folder_reader.h"

namespace tidewell::posix {

/// A name in a folder, with the file system's own number of what it names.
struct NumberedEntry {
    std::uint64_t inode;
    std::string name;
    bool isFolder;  ///< false also if the file system does not tell
};

/// Some of what a folder holds, in the order of the inodes: on a disk that keeps them in tables,
/// removing in that order is a third faster than in the order of the listing.
struct EntryBatch {
    std::vector<NumberedEntry> entries;
    bool isLast;
};

/// Goes on reading an open folder from where its descriptor stands, so that a folder of any size is
/// read in bounded memory. Absent if it cannot be read; a folder that was removed meanwhile holds
/// nothing.
std::optional<EntryBatch> readBatch(FolderReader& reader, int folder);

}  // namespace tidewell::posix
