#include "platform/disk_usage.h"

#include <algorithm>
#include <cerrno>
#include <thread>

#include "platform/linux/descriptor_limit.h"
#include "platform/linux/folder_measurer.h"
#include "platform/linux/work_pool.h"
#include "platform/posix/reach.h"

namespace tidewell {
namespace {

using linux_system::WorkPool;

/// Disks answer sooner the more they are asked at once, so there are threads to spare; where all is
/// in memory, they cost next to nothing. A thread needs a few descriptors.
int poolWidth() {
    constexpr unsigned leastWidth = 8;
    constexpr std::size_t descriptorsOfThread = 8;
    const std::size_t wanted = std::max(leastWidth, 2 * std::thread::hardware_concurrency());
    const auto affordable = linux_system::descriptorLimit() / descriptorsOfThread;
    return static_cast<int>(std::clamp<std::size_t>(affordable, 1, wanted));
}

DiskUsage measured(const std::string& path, MeasuredFolders* known) {
    static auto& pool = WorkPool::make(poolWidth());
    const auto folder = posix::openFolder(path);
    if (folder) return linux_system::usageBelow(pool, folder, known);
    const bool isNoFolder = linux_system::isGone();
    DiskUsage usage;
    if (posix::isOutOfReach(path, posix::LastLink::keep)) {
        usage.unread.add(0, path);
        return usage;
    }
    const auto size = linux_system::sizeOfRegularFile(AT_FDCWD, path.c_str());
    usage.bytes = size.value_or(0);
    const bool isMissing = !size && (errno == ENOENT || errno == ENOTDIR);
    const bool isMeasured = size && isNoFolder;
    if (!isMissing && !isMeasured) usage.unread.add(0, path);
    return usage;
}

}  // namespace

DiskUsage diskUsage(const std::string& path) {
    return measured(path, nullptr);
}

DiskUsage diskUsage(const std::string& path, MeasuredFolders& known) {
    return measured(path, &known);
}

}  // namespace tidewell
