#pragma once

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <utility>

namespace tidewell::test {

/// One entry of a disk, links not followed: all that a user would miss if it changed.
struct Entry {
    mode_t mode = 0;
    uid_t owner = 0;
    gid_t group = 0;
    std::int64_t size = 0;         ///< bytes; 0 for folders
    std::int64_t allocated = 0;    ///< bytes on the disk, of a regular file; else 0
    std::int64_t changed = 0;      ///< nanoseconds since 1970
    std::string content;           ///< what a link leads to; a digest of a file's bytes
    std::pair<dev_t, ino_t> file;  ///< the same for every name of a file
    nlink_t names = 0;             ///< how many names it has, wherever they are

    bool isFolder() const;
    /// What it takes up does not count, since an attribute of its own can need a block; nor do its
    /// other names, which may go.
    bool operator==(const Entry& other) const {
        return std::tie(mode, owner, group, size, changed, content) ==
               std::tie(other.mode, other.owner, other.group, other.size, other.changed,
                        other.content);
    }
};

/// Path to entry, for all below a folder, that folder included.
using Snapshot = std::map<std::string, Entry>;

/// Enters mounted file systems too. Of a file of more than a megabyte, only both ends are read.
Snapshot takeSnapshot(const std::string& folder);

/// The part of a snapshot at and below a path.
Snapshot below(const Snapshot& snapshot, const std::string& path);

}  // namespace tidewell::test
