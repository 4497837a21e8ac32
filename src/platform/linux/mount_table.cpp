#include "platform/mount_table.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/linux/mount_lines.h"
#include "platform/posix/read_whole.h"

namespace tidewell {

MountTable MountTable::read() {
    constexpr std::size_t tableLimit = std::size_t{16} * 1024 * 1024;
    const posix::Descriptor table(::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC));
    const auto lines = posix::readWhole(table, tableLimit).value_or(std::string());
    return MountTable(linux_system::mountsOfLines(lines));
}

std::optional<std::uint64_t> mountNumber(const std::string& path) {
    struct statx status;
    const int found = ::statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_MNT_ID, &status);
    if (found != 0 || !(status.stx_mask & STATX_MNT_ID)) return std::nullopt;
    return status.stx_mnt_id;
}

}  // namespace tidewell
