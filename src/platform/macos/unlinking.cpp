#include "platform/posix/unlinking.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace tidewell::posix {

namespace {

bool isFolder(int place, const char* name) {
    struct stat status {};
    return ::fstatat(place, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

/// The system answers EPERM for a folder, and lets the superuser unlink one on some file systems,
/// with all in it lost to the disk.
int unlinkNoFolder(int place, const char* name) {
    const bool isSuperuser = ::geteuid() == 0;
    if (isSuperuser && isFolder(place, name)) {
        errno = EISDIR;
        return -1;
    }
    const int result = ::unlinkat(place, name, 0);
    if (result != 0 && errno == EPERM) errno = isFolder(place, name) ? EISDIR : EPERM;
    return result;
}

}  // namespace tidewell::posix
