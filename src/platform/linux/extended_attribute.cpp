#include <sys/xattr.h>

#include "platform/files.h"
#include "platform/posix/reach.h"

namespace tidewell {

std::optional<std::string> extendedAttribute(const std::string& path, const std::string& name) {
    if (posix::isOutOfReach(path, posix::LastLink::keep)) return std::nullopt;
    char value[4096];
    const auto length = ::lgetxattr(path.c_str(), ("user." + name).c_str(), value, sizeof value);
    if (length < 0) return std::nullopt;
    return std::string(value, static_cast<std::size_t>(length));
}

}  // namespace tidewell
