#include "platform/identity.h"

#include <sys/stat.h>

#include <cerrno>

#include "platform/posix/reach.h"

namespace tidewell {

std::optional<Identity> identityOf(const std::string& path) {
    if (posix::isOutOfReach(path, posix::LastLink::keep)) return std::nullopt;
    struct stat status;
    if (::lstat(path.c_str(), &status) != 0) return std::nullopt;
    return Identity{.device = static_cast<std::uint64_t>(status.st_dev), .inode = status.st_ino};
}

bool isSurelyMissing(const std::string& path) {
    if (posix::isOutOfReach(path, posix::LastLink::keep)) return false;
    struct stat status;
    return ::lstat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

}  // namespace tidewell
