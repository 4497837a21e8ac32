#include "platform/posix/mounted_folder.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace tidewell::posix {

namespace {

/// No two mounts have the same device here: a disk is mounted once.
std::optional<MountedFolder> found(int result, const struct stat& status) {
    if (result != 0) return std::nullopt;
    return MountedFolder{
        .folder = {.device = static_cast<std::uint64_t>(status.st_dev), .inode = status.st_ino},
        .mount = static_cast<std::uint32_t>(status.st_dev)};
}

}  // namespace

std::optional<MountedFolder> mountedFolder(int descriptor) {
    struct stat status {};
    return found(::fstat(descriptor, &status), status);
}

std::optional<MountedFolder> mountedFolder(int descriptor, const char* name) {
    struct stat status {};
    return found(::fstatat(descriptor, name, &status, AT_SYMLINK_NOFOLLOW), status);
}

}  // namespace tidewell::posix
