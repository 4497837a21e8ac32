#include "platform/posix/descriptor_paths.h"

#include <linux/magic.h>
#include <sys/vfs.h>

#include <charconv>

namespace tidewell::posix {

namespace {

/// Of this process: none without /proc.
Descriptor openOwnDescriptors() {
    Descriptor folder(::open("/proc/self/fd", O_PATH | O_DIRECTORY | O_CLOEXEC));
    struct statfs status;
    const bool isGenuine =
        folder && ::fstatfs(folder.get(), &status) == 0 && status.f_type == PROC_SUPER_MAGIC;
    return isGenuine ? std::move(folder) : Descriptor();
}

}  // namespace

/// The system tells no path that is longer than a page.
DescriptorPaths::DescriptorPaths() : source_(openOwnDescriptors()), longest_(source_ ? limit : 0) {}

std::optional<std::string_view> DescriptorPaths::pathOf(int descriptor, Buffer& buffer) const {
    std::array<char, 16> name{};
    std::to_chars(name.data(), name.data() + name.size() - 1, descriptor);
    const auto length = ::readlinkat(source_.get(), name.data(), buffer.data(), buffer.size());
    if (length < 0) return std::nullopt;
    return std::string_view(buffer.data(), static_cast<std::size_t>(length));
}

}  // namespace tidewell::posix
