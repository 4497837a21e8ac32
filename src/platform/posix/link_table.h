#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <mutex>
#include <vector>

#include "platform/byte_count.h"

namespace tidewell::posix {

/// The files with several names that a measure has met, so that each counts once, and only when all
/// of its names were met. Takes 16 bytes for each, and never more than 64 MB: what comes then
/// counts as having names elsewhere. Any thread.
class LinkTable {
 public:
    struct Change {
        ByteCount freed = 0;
        ByteCount shared = 0;
    };
    /// What the measure grows by with another name of the file.
    Change meet(const struct stat& status);

 private:
    struct Slot {
        std::uint64_t inode = 0;
        std::uint32_t device = 0;     ///< its place among the devices met
        std::uint32_t namesLeft = 0;  ///< not yet met
    };

    Slot* find(const struct stat& status);
    bool makeRoom();
    std::uint32_t placeOf(dev_t device);
    static Slot& slotOf(std::vector<Slot>& slots, std::uint64_t inode, std::uint32_t device);

    std::mutex mutex_;
    std::vector<dev_t> devices_;
    std::vector<Slot> slots_;  ///< an open hash table, of a size that is a power of two
    std::size_t used_ = 0;
};

}  // namespace tidewell::posix
