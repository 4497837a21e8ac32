#include "platform/posix/mounted_folder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace tidewell::posix {

std::optional<MountedFolder> mountedFolder(int descriptor) {
    return mountedFolder(descriptor, "");
}

std::optional<MountedFolder> mountedFolder(int descriptor, const char* name) {
    constexpr int flags = AT_EMPTY_PATH | AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
    struct statx status;
    if (::statx(descriptor, name, flags, STATX_INO | STATX_MNT_ID, &status) != 0)
        return std::nullopt;
    return MountedFolder{
        .folder = {.device = ::makedev(status.stx_dev_major, status.stx_dev_minor),
                   .inode = status.stx_ino},
        .mount = status.stx_mask & STATX_MNT_ID ? status.stx_mnt_id : 0,
    };
}

}  // namespace tidewell::posix
