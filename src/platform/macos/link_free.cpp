#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "platform/posix/link_free_host.h"

namespace tidewell::link_free {

namespace {

using posix::Descriptor;

Descriptor openWithoutLinks(int parent, const char* path, int flags) {
    return Descriptor(posix::retrying(
        [&] { return ::openat(parent, path, (flags & ~O_NOFOLLOW) | O_NOFOLLOW_ANY); }));
}

bool isOnOneDevice(int one, int other) {
    struct stat first {};
    struct stat second {};
    return ::fstat(one, &first) == 0 && ::fstat(other, &second) == 0 &&
           first.st_dev == second.st_dev;
}

}  // namespace

const int placeFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

Descriptor openPlaceAtOnce(const std::string& absolutePath) {
    return openWithoutLinks(AT_FDCWD, absolutePath.c_str(), placeFlags);
}

Descriptor openSubfolderAtOnce(int parent, const std::string& name) {
    auto folder = openWithoutLinks(parent, name.c_str(), posix::openFolderFlags);
    if (!folder || isOnOneDevice(parent, folder.get())) return folder;
    errno = EXDEV;
    return Descriptor();
}

}  // namespace tidewell::link_free
