#include "platform/linux/entry_batch.h"

#include <algorithm>

namespace tidewell::linux_system {

namespace {

constexpr std::size_t batchLimit = 64 * 1024;

}  // namespace

std::optional<EntryBatch> readBatch(FolderReader& reader, int folder) {
    EntryBatch batch{.entries = {}, .isLast = false};
    while (!batch.isLast && batch.entries.size() < batchLimit) {
        const auto portion = reader.readPortion(folder);
        if (portion == FolderReader::Reading::failed) return std::nullopt;
        batch.isLast = portion == FolderReader::Reading::end;
        reader.forEachEntry([&](const ReadEntry& entry) {
            batch.entries.push_back(
                {.inode = entry.inode, .name = entry.name, .isFolder = entry.type == DT_DIR});
        });
    }
    std::ranges::sort(batch.entries, {}, &NumberedEntry::inode);
    return batch;
}

}  // namespace tidewell::linux_system
