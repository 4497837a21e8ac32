#include "platform/disk_usage.h"

#include <sys/stat.h>

#include <cerrno>

#include "platform/posix/folder_measurer.h"
#include "platform/posix/reach.h"

namespace tidewell {
namespace {

using posix::Helpers;
using posix::LinkTable;
using posix::Measuring;

DiskUsage measured(const std::string& path, const Measuring& how) {
    const auto folder = posix::openFolder(path);
    if (folder) return posix::usageBelow(posix::measuringPool(), folder, how);
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
