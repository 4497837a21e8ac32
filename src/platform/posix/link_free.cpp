#include "platform/posix/link_free.h"

#include "platform/path_text.h"
#include "platform/posix/link_free_host.h"
#include "platform/posix/mounted_folder.h"
#include "platform/posix/reach.h"

namespace tidewell::link_free {

namespace {

using posix::Descriptor;

/// Older kernels do not have the calls; the filters of some containers forbid them.
bool lacksCall() {
    return errno == ENOSYS || errno == EPERM;
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
    auto place = openPlaceAtOnce(absolutePath);
    if (place || (!lacksCall() && errno != ENAMETOOLONG)) return place;
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
    auto folder = openSubfolderAtOnce(parent, name);
    return folder || !lacksCall() ? std::move(folder) : openSubfolderStepwise(parent, name);
}

/// Where the system does not tell mounts apart, no folder counts as being on the same.
bool isOnSameMount(int folder, int other) {
    const auto which = posix::mountedFolder(folder);
    const auto otherWhich = posix::mountedFolder(other);
    return which && otherWhich && which->mount != 0 && which->mount == otherWhich->mount;
}

}  // namespace tidewell::link_free
