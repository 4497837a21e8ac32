#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/byte_count.h"
#include "platform/stop.h"
#include "platform/system.h"

namespace tidewell {

/// One thing in a tree of sizes.
struct SizedEntry {
    enum class Type {
        folder,
        file,
        smallerEntries,  ///< all of a folder that is not told by itself, as one
    };

    std::string name;  ///< the last component; empty for smaller entries
    Type type = Type::folder;
    ByteCount bytes = 0;      ///< what allocatedSize, or on Linux machines freedUsage, says of it
    std::uint64_t count = 1;  ///< how many files and folders smaller entries are
    bool isUnread = false;    ///< something in it could not be read, and is in no figure
    std::uint32_t parent = 0;
    std::uint32_t firstChild = 0;  ///< children lie side by side, the largest first
    std::uint32_t childCount = 0;
};

/// What is large below a folder: what has at least a two-thousandth of its bytes, and no more than
/// 20,000 entries. The folder itself is the first, then the others level by level. What a folder
/// has beyond its told entries is in one entry for the smaller ones, which comes last among its
/// children: also what several of them share, so that the children's bytes add up to the folder's.
using FolderSizes = std::vector<SizedEntry>;

struct FolderSizing {
    System system;  ///< whose rule holds for files with several names
    StopToken stop = {};
    /// Called on several threads, with the bytes met so far.
    std::function<void(ByteCount)> progress = nullptr;
};

/// Measures a folder as diskUsage does, in one walk, by as many threads. Empty if it is missing, a
/// link or no folder, or if it was stopped. The memory it takes depends on neither the depth nor
/// the number of entries, but for up to 64 MB about files with several names on Linux machines:
/// each counts in the innermost folder that has all of its names, and those beyond a million
/// nowhere. Blocks; any thread.
FolderSizes folderSizes(const std::string& folder, const FolderSizing& how);

}  // namespace tidewell
