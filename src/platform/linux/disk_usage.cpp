#include "platform/disk_usage.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <thread>

#include "platform/linux/folder_measurer.h"
#include "platform/posix/descriptor_limit.h"
#include "platform/posix/reach.h"
#include "platform/posix/work_pool.h"

namespace tidewell {
namespace {

using posix::Helpers;
using posix::LinkTable;
using posix::Measuring;
using posix::WorkPool;

/// Disks answer sooner the more they are asked at once, so there are threads to spare; where all is
/// in memory, they cost next to nothing. A thread needs a few descriptors.
int poolWidth() {
    constexpr unsigned leastWidth = 8;
    constexpr std::size_t descriptorsOfThread = 8;
    const std::size_t wanted = std::max(leastWidth, 2 * std::thread::hardware_concurrency());
    const auto affordable = posix::descriptorLimit() / descriptorsOfThread;
    return static_cast<int>(std::clamp<std::size_t>(affordable, 1, wanted));
}

DiskUsage measured(const std::string& path, const Measuring& how) {
    static auto& pool = WorkPool::make(poolWidth());
    const auto folder = posix::openFolder(path);
    if (folder) return posix::usageBelow(pool, folder, how);
    const bool isNoFolder = posix::isGone();
    DiskUsage usage;
    if (posix::isOutOfReach(path, posix::LastLink::keep)) {
        usage.unread.add(0, path);
        return usage;
    }
    struct stat status;
    const bool isTold = ::lstat(path.c_str(), &status) == 0;
    if (isTold) posix::addFile(status, how.links, usage);
    const bool isMissing = !isTold && (errno == ENOENT || errno == ENOTDIR);
    const bool isMeasured = isTold && isNoFolder;
    if (!isMissing && !isMeasured) usage.unread.add(0, path);
    return usage;
}

}  // namespace

DiskUsage diskUsage(const std::string& path) {
    return posix::withHelpersOrWithout(
        [&](Helpers helpers) { return measured(path, {.helpers = helpers}); });
}

DiskUsage diskUsage(const std::string& path, MeasuredFolders& known) {
    return posix::withHelpersOrWithout(
        [&](Helpers helpers) { return measured(path, {.helpers = helpers, .known = &known}); });
}

FreedUsage freedByRemoving(std::span<const std::string> paths) {
    return posix::withHelpersOrWithout([&](Helpers helpers) {
        LinkTable links;
        FreedUsage all;
        for (const auto& path : paths) {
            const auto usage = measured(path, {.helpers = helpers, .links = &links});
            all.freedBytes += usage.bytes;
            all.sharedBytes += usage.linkedBytes;
        }
        return all;
    });
}

}  // namespace tidewell
