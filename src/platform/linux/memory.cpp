#include "platform/memory.h"

#include <unistd.h>

#include <algorithm>

#include "platform/files.h"
#include "platform/linux/process_status.h"

namespace tidewell {

namespace {

constexpr std::size_t longestFile = 64 * 1024;

ByteCount installedMemory() {
    const ByteCount pages = ::sysconf(_SC_PHYS_PAGES);
    const ByteCount pageSize = ::sysconf(_SC_PAGESIZE);
    return pages > 0 && pageSize > 0 ? pages * pageSize : 0;
}

}  // namespace

MemoryUsage memoryUsage() {
    using linux_system::labelledByteCount;
    const auto text = readFile("/proc/meminfo", longestFile).value_or("");
    const auto total = labelledByteCount(text, "MemTotal:");
    const auto available = labelledByteCount(text, "MemAvailable:");
    if (!total || !available) return {.used = 0, .total = total.value_or(installedMemory())};
    return {.used = std::max<ByteCount>(*total - *available, 0), .total = *total};
}

}  // namespace tidewell
