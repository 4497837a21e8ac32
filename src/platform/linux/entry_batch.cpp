#include "platform/linux/entry_batch.h"

#include <dirent.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace tidewell {

namespace {

constexpr std::size_t batchLimit = 64 * 1024;
constexpr std::size_t bufferSize = 64 * 1024;

using Buffer = std::array<char, bufferSize>;

void addEntries(const Buffer& buffer, std::size_t length, std::vector<NumberedEntry>& entries) {
    for (std::size_t at = 0; at < length;) {
        dirent64 entry;
        std::memcpy(&entry, buffer.data() + at, offsetof(dirent64, d_name));
        const std::string_view name = buffer.data() + at + offsetof(dirent64, d_name);
        if (name != "." && name != "..")
            entries.push_back({.inode = entry.d_ino,
                               .name = std::string(name),
                               .isFolder = entry.d_type == DT_DIR});
        at += entry.d_reclen;
    }
}

}  // namespace

std::optional<EntryBatch> readBatch(int folder) {
    alignas(dirent64) Buffer buffer;
    EntryBatch batch{.entries = {}, .isLast = false};
    while (!batch.isLast && batch.entries.size() < batchLimit) {
        const auto length = ::getdents64(folder, buffer.data(), buffer.size());
        if (length < 0 && errno != ENOENT) return std::nullopt;
        batch.isLast = length <= 0;
        if (length > 0) addEntries(buffer, static_cast<std::size_t>(length), batch.entries);
    }
    std::ranges::sort(batch.entries, {}, &NumberedEntry::inode);
    return batch;
}

}  // namespace tidewell
