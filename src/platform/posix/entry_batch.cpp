#include "platform/posix/entry_batch.h"

#include <algorithm>
#include <limits>

namespace tidewell::posix {

namespace {

constexpr std::size_t batchLimit = 64 * 1024;

}  // namespace

std::optional<EntryBatch> readBatch(FolderReader& reader, int folder) {
    EntryBatch batch{.entries = {}, .isLast = false};
    const auto limit =
        FolderReader::outlivesRemoval ? batchLimit : std::numeric_limits<std::size_t>::max();
    while (!batch.isLast && batch.entries.size() < limit) {
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

}  // namespace tidewell::posix
