#include "platform/posix/link_free.h"

#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <cstdint>
#include <optional>

#include "platform/path_text.h"
#include "platform/posix/reach.h"

namespace tidewell::link_free {

namespace {

using posix::Descriptor;

constexpr int placeFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

Descriptor openConfined(int parent, const char* path, int flags, std::uint64_t resolve) {
    open_how how{};
    how.flags = static_cast<std::uint64_t>(flags);
    how.resolve = resolve;
    return Descriptor(static_cast<int>(
        posix::retrying([&] { return ::syscall(SYS_openat2, parent, path, &how, sizeof how); })));
}

/// Kernels before 5.6 do not have the call; the filters of some containers forbid it.
bool lacksConfinedOpen() {
    return errno == ENOSYS || errno == EPERM;
}

/// Absent on kernels that do not tell; then no folder counts as being on the same mount.
std::optional<std::uint64_t> mountOf(int folder) {
    struct statx status;
    if (::statx(folder, "", AT_EMPTY_PATH, STATX_MNT_ID, &status) != 0) return std::nullopt;
    if (!(status.stx_mask & STATX_MNT_ID)) return std::nullopt;
    return status.stx_mnt_id;
}

/// Of any length, since it never hands over more than one component.
Descriptor openPlaceStepwise(const std::string& absolutePath) {
    Descriptor place(::open("/", placeFlags));
    for (const auto piece : pathPieces(absolutePath)) {
        if (!place) break;
        place = openPlaceIn(place.get(), std::string(piece));
    }
    return place;
}

Descriptor openSubfolderStepwise(int parent, const std::string& name) {
    auto folder = posix::openSubfolder(parent, name);
    if (!folder || isOnSameMount(folder.get(), parent)) return folder;
    folder = Descriptor();
    errno = EXDEV;
    return Descriptor();
}

}  // namespace

Descriptor openPlace(const std::string& absolutePath) {
    auto place = openConfined(AT_FDCWD, absolutePath.c_str(), placeFlags, RESOLVE_NO_SYMLINKS);
    if (place || (!lacksConfinedOpen() && errno != ENAMETOOLONG)) return place;
    return openPlaceStepwise(absolutePath);
}

Descriptor openPlaceIn(int parent, const std::string& name) {
    return Descriptor(::openat(parent, name.c_str(), placeFlags));
}

Place openPlaceOf(const std::string& absolutePath) {
    return {.folder = openPlace(std::string(parentPath(absolutePath))),
            .name = std::string(lastPathComponent(absolutePath))};
}

Descriptor openSubfolder(int parent, const std::string& name) {
    auto folder = openConfined(parent, name.c_str(), posix::openFolderFlags,
                               RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_XDEV);
    return folder || !lacksConfinedOpen() ? std::move(folder) : openSubfolderStepwise(parent, name);
}

bool isOnSameMount(int folder, int other) {
    const auto mount = mountOf(folder);
    return mount && mount == mountOf(other);
}

}  // namespace tidewell::link_free
