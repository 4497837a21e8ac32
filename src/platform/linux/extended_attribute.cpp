#include <sys/xattr.h>

#include "platform/files.h"

namespace tidewell {

std::optional<std::string> extendedAttribute(const std::string& path, const std::string& name) {
    char value[4096];
    const auto length = ::lgetxattr(path.c_str(), name.c_str(), value, sizeof value);
    if (length < 0) return std::nullopt;
    return std::string(value, static_cast<std::size_t>(length));
}

}  // namespace tidewell
