#include "platform/identity.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <memory>

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

bool isEndUntold(const std::string& path) {
    if (posix::isOutOfReach(path, posix::LastLink::follow)) return false;
    const std::unique_ptr<char, void (*)(void*)> end(::realpath(path.c_str(), nullptr), std::free);
    constexpr std::array told = {ENOENT, ENOTDIR, ELOOP, EACCES};
    return !end && std::ranges::find(told, errno) == told.end();
}

}  // namespace tidewell
