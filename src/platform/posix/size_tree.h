#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder_sizes.h"

namespace tidewell::posix {

/// What a sizing keeps of what it has met: entries that may turn out to be large enough to be told,
/// by what all have together so far, which only grows. Any thread.
class SizeTree {
 public:
    using Place = std::uint32_t;
    static constexpr Place none = ~Place{0};

    struct Entry {
        std::string name = {};
        SizedEntry::Type type = SizedEntry::Type::folder;
        ByteCount bytes = 0;
        std::uint64_t things = 0;  ///< files and folders directly in it
        bool isUnread = false;
        Place children = none;  ///< the first of a list
    };

    explicit SizeTree(std::function<void(ByteCount)> progress) : progress_(std::move(progress)) {}

    /// Takes note of bytes met.
    void grow(ByteCount bytes);
    bool isWorthKeeping(ByteCount bytes) const {
        return bytes > 0 && bytes >= met_.load(std::memory_order_relaxed) / parts;
    }

    /// Puts an entry at the head of a list, which is guarded by this. Of its own children those go
    /// that are worth nothing any more.
    void add(Place& list, Entry entry);
    /// Gives up a list with all below it.
    void drop(Place list);

    /// The only entry of a list and all that is to be told below it.
    FolderSizes told(Place top) const;

 private:
    static constexpr ByteCount parts = 2000;

    class Telling;
    struct Kept : Entry {
        Place next = none;
    };

    Place put(Entry entry, Place next);
    void prune(Place& list);
    void dropLocked(Place list);
    std::vector<Place> largest(Place top) const;
    template <class Visit>
    void forEachIn(Place list, const Visit& visit) const;

    const std::function<void(ByteCount)> progress_;
    std::atomic<ByteCount> met_ = 0;
    std::mutex mutex_;
    std::vector<Kept> entries_;
    std::vector<Place> free_;
};

}  // namespace tidewell::posix
