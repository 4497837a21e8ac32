#include "platform/trash/exclusive_move.h"

#include <cerrno>

#include "platform/posix/folder_identity.h"
#include "platform/trash/exclusive_rename.h"

namespace tidewell::trash {

namespace {

/// A descriptor says which folder it is, and not where it lies.
bool liesWhereSeen(const SeenPlace& seen) {
    const auto there = link_free::openPlace(seen.folderPath);
    const auto identity = there ? posix::identityOf(there.get()) : std::nullopt;
    return identity && identity == posix::identityOf(seen.place.folder.get());
}

}  // namespace

int moveWithoutOverwriting(const SeenPlace& from, int folder, const std::string& name,
                           Detour detour) {
    if (!liesWhereSeen(from)) return ESTALE;
    if (renameExclusively(from.place, folder, name) == 0) return 0;
    const bool isUnknown =
        errno == EINVAL || errno == ENOSYS || errno == ENOTSUP || errno == EOPNOTSUPP;
    return isUnknown ? moveByDetour(from.place, folder, name, detour) : errno;
}

}  // namespace tidewell::trash
