#include "platform/posix/descriptor_paths.h"

#include <fcntl.h>
#include <sys/param.h>

#include <algorithm>
#include <cstring>

namespace tidewell::posix {

/// Asked through the descriptor itself.
DescriptorPaths::DescriptorPaths() : longest_(std::min<std::size_t>(MAXPATHLEN - 1, limit)) {}

std::optional<std::string_view> DescriptorPaths::pathOf(int descriptor, Buffer& buffer) const {
    static_assert(std::tuple_size_v<Buffer> >= MAXPATHLEN);
    if (::fcntl(descriptor, F_GETPATH, buffer.data()) != 0) return std::nullopt;
    return std::string_view(buffer.data(), ::strnlen(buffer.data(), buffer.size()));
}

}  // namespace tidewell::posix
