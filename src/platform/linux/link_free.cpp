#include <linux/openat2.h>
#include <sys/syscall.h>

#include <cstdint>

#include "platform/posix/link_free_host.h"

namespace tidewell::link_free {

namespace {

using posix::Descriptor;

/// Kernels before 5.6 do not have the call.
Descriptor openConfined(int parent, const char* path, int flags, std::uint64_t resolve) {
    open_how how{};
    how.flags = static_cast<std::uint64_t>(flags);
    how.resolve = resolve;
    return Descriptor(static_cast<int>(
        posix::retrying([&] { return ::syscall(SYS_openat2, parent, path, &how, sizeof how); })));
}

}  // namespace

const int placeFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

Descriptor openPlaceAtOnce(const std::string& absolutePath) {
    return openConfined(AT_FDCWD, absolutePath.c_str(), placeFlags, RESOLVE_NO_SYMLINKS);
}

Descriptor openSubfolderAtOnce(int parent, const std::string& name) {
    return openConfined(parent, name.c_str(), posix::openFolderFlags,
                        RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_XDEV);
}

}  // namespace tidewell::link_free
