#include "platform/trash/exclusive_move.h"

#include <sys/xattr.h>

#include <cerrno>
#include <cstdio>

#include "platform/posix/folder_identity.h"

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
    const int result = ::renameat2(from.place.folder.get(), from.place.name.c_str(), folder,
                                   name.c_str(), RENAME_NOREPLACE);
    if (result == 0) return 0;
    const bool isUnknown = errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    return isUnknown ? moveByDetour(from.place, folder, name, detour) : errno;
}

/// By a path below the descriptor, since the entry may not be one that can be opened.
std::string pathThrough(int folder, const std::string& name) {
    return "/proc/self/fd/" + std::to_string(folder) + "/" + name;
}

void noteOrigin(int folder, const std::string& name, const std::string& origin) {
    ::lsetxattr(pathThrough(folder, name).c_str(), originAttribute, origin.data(), origin.size(),
                0);
}

void forgetOrigin(int folder, const std::string& name) {
    ::lremovexattr(pathThrough(folder, name).c_str(), originAttribute);
}

}  // namespace tidewell::trash
