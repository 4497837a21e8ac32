#pragma once

#include <dirent.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace tidewell::posix {

/// An entry as a folder tells it.
struct ReadEntry {
    const char* name;
    unsigned char type;   ///< one of readdir's d_type
    std::uint64_t inode;  ///< the file system's own number of what it names
};

/// Reads what a folder holds a portion at a time, by the system's own call: a stream of the C
/// library costs an allocation and two more calls a folder.
class FolderReader {
 public:
    enum class Reading { portion, end, failed };

    /// Whether a reading that goes on after entries were removed meets all the others. Where it may
    /// miss some, a folder is read to its end before anything in it is removed.
    static const bool outlivesRemoval;

    /// Reads on where the descriptor stands; a folder that was removed meanwhile is at its end. A
    /// portion may be of any size: only an empty one tells the end.
    Reading readPortion(int folder);

    /// Calls `visit(const ReadEntry&)` for each entry of the portion but "." and "..". The names
    /// hold until the next portion.
    template <class Visit>
    void forEachEntry(const Visit& visit) const {
        ReadEntry entry{};
        for (std::size_t at = 0; at < filled_;) {
            at = takeEntry(at, entry);
            const std::string_view name = entry.name;
            if (name != "." && name != "..") visit(entry);
        }
    }

 private:
    /// Gives where the next one begins.
    std::size_t takeEntry(std::size_t at, ReadEntry& entry) const;

    static constexpr std::size_t capacity = 32 * 1024;

    std::unique_ptr<std::byte[]> buffer_ = std::make_unique_for_overwrite<std::byte[]>(capacity);
    std::size_t filled_ = 0;
};

}  // namespace tidewell::posix
