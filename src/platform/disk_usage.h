#pragma once

#include <span>
#include <string>

#include "platform/byte_count.h"
#include "platform/unread_things.h"

namespace tidewell {

struct DiskUsage {
    ByteCount bytes = 0;
    UnreadThings unread;
    ByteCount linkedBytes = 0;  ///< those of `bytes` that belong to files with several names
};

/// The bytes allocated on disk for a file, or for all regular files below a folder.
///
/// Links add nothing, and a path that is a link itself gives 0, so that a measure never leaves its
/// tree through a link. Folders themselves add nothing; a file with several hard links counts each
/// time it is met; mounts are crossed, but a folder that is its own ancestor is not entered again.
/// What is missing or vanishes adds nothing; what stands there and cannot be read neither, but it
/// is remembered. Neither depth nor width costs memory or descriptors without bound. Blocks the
/// caller until the end; any thread; callers at once share one pool of threads, so that they get on
/// with each other instead of crowding the machine.
DiskUsage diskUsage(const std::string& path);

struct FreedUsage {
    ByteCount freedBytes = 0;
    ByteCount sharedBytes = 0;  ///< what would stay, since it has names elsewhere
};

/// What removing several paths together would free: a file with several names counts once, and only
/// if all its names lie in there. None of the paths lies in another. Otherwise as above. Remembers
/// up to 64 MB of such files; any more count as shared.
FreedUsage freedByRemoving(std::span<const std::string> paths);

inline ByteCount allocatedSize(const std::string& path) {
    return diskUsage(path).bytes;
}

}  // namespace tidewell
