#include "platform/trash/volume_top.h"

#include "platform/path_text.h"
#include "platform/posix/folder_identity.h"
#include "platform/posix/link_free.h"

namespace tidewell::trash {

namespace {

bool isOnSameVolume(int folder, int other) {
    const auto identity = posix::identityOf(folder);
    const auto otherIdentity = posix::identityOf(other);
    return link_free::isOnSameMount(folder, other) && identity && otherIdentity &&
           identity->device == otherIdentity->device;
}

}  // namespace

VolumeTop topOfVolume(const std::string& path, int folder, const std::string& root) {
    if (!isAtOrBelow(path, root) && root != "/") return {};
    auto above = root;
    for (const auto piece : pathPieces(pathRelativeTo(path, root))) {
        auto opened = link_free::openPlace(above);
        if (opened && isOnSameVolume(opened.get(), folder)) return {above, std::move(opened)};
        above = joinPath(above, piece);
    }
    return {path, link_free::openPlace(path)};
}

}  // namespace tidewell::trash
