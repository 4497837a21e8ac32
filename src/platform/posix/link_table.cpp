#include "platform/posix/link_table.h"

#include <algorithm>
#include <new>

namespace tidewell::posix {

namespace {

constexpr std::size_t firstSize = 1024;
constexpr std::size_t largestSize = 64 * 1024 * 1024 / 16;
constexpr ByteCount bytesPerBlock = 512;

}  // namespace

LinkTable::Change LinkTable::meet(const struct stat& status) {
    const ByteCount size = status.st_blocks * bytesPerBlock;
    const std::lock_guard lock(mutex_);
    auto* slot = find(status);
    if (!slot) return {.shared = size};
    const bool isNew = slot->inode == 0;
    if (isNew) {
        ++used_;
        *slot = {.inode = status.st_ino,
                 .device = placeOf(status.st_dev),
                 .namesLeft = static_cast<std::uint32_t>(status.st_nlink)};
    }
    // Met more often than it has names: through a mount, or because one was moved.
    if (slot->namesLeft == 0) return {};
    if (--slot->namesLeft == 0) return {.freed = size, .shared = isNew ? 0 : -size};
    return {.shared = isNew ? size : 0};
}

/// None if the table is full and does not know the file.
LinkTable::Slot* LinkTable::find(const struct stat& status) {
    static_assert(sizeof(Slot) == 16);
    const bool hasRoom = used_ < slots_.size() / 4 * 3 || makeRoom();
    if (slots_.empty()) return nullptr;
    auto& slot = slotOf(slots_, status.st_ino, placeOf(status.st_dev));
    return slot.inode != 0 || hasRoom ? &slot : nullptr;
}

bool LinkTable::makeRoom() {
    if (slots_.size() >= largestSize) return false;
    try {
        std::vector<Slot> larger(std::max(firstSize, 2 * slots_.size()));
        for (const auto& slot : slots_)
            if (slot.inode != 0) slotOf(larger, slot.inode, slot.device) = slot;
        slots_ = std::move(larger);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::uint32_t LinkTable::placeOf(dev_t device) {
    const auto found = std::ranges::find(devices_, device);
    const auto place = static_cast<std::uint32_t>(found - devices_.begin());
    if (found == devices_.end()) devices_.push_back(device);
    return place;
}

LinkTable::Slot& LinkTable::slotOf(std::vector<Slot>& slots, std::uint64_t inode,
                                   std::uint32_t device) {
    constexpr std::uint64_t golden = 0x9e3779b97f4a7c15;
    const auto hash = (inode * golden) ^ (device * (golden << 1));
    auto at = static_cast<std::size_t>(hash >> 20) & (slots.size() - 1);
    while (slots[at].inode != 0 && (slots[at].inode != inode || slots[at].device != device))
        at = (at + 1) & (slots.size() - 1);
    return slots[at];
}

}  // namespace tidewell::posix
