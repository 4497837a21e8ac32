#include "platform/trash/detour.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/descriptor.h"

namespace tidewell::trash {

namespace {

using link_free::Place;

enum class Sort { folder, file };

/// Takes what was made for the entry away again, if that did not come.
int movedOver(const Place& from, int folder, const std::string& name, Sort sort) {
    if (::renameat(from.folder.get(), from.name.c_str(), folder, name.c_str()) == 0) return 0;
    const int error = errno;
    ::unlinkat(folder, name.c_str(), sort == Sort::folder ? AT_REMOVEDIR : 0);
    return error;
}

int moveFolder(const Place& from, int folder, const std::string& name) {
    if (::mkdirat(folder, name.c_str(), S_IRWXU) != 0) return errno;
    return movedOver(from, folder, name, Sort::folder);
}

int moveOverPlaceholder(const Place& from, int folder, const std::string& name) {
    constexpr int onlyIfMissing = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const posix::Descriptor made(::openat(folder, name.c_str(), onlyIfMissing, S_IRUSR | S_IWUSR));
    if (!made) return errno;
    return movedOver(from, folder, name, Sort::file);
}

int moveByLink(const Place& from, int folder, const std::string& name) {
    if (::linkat(from.folder.get(), from.name.c_str(), folder, name.c_str(), 0) != 0)
        return errno == EEXIST || errno == ENOENT || errno == EXDEV ? errno : EINVAL;
    if (::unlinkat(from.folder.get(), from.name.c_str(), 0) == 0) return 0;
    const int error = errno;
    ::unlinkat(folder, name.c_str(), 0);
    return error;
}

}  // namespace

int moveByDetour(const Place& from, int folder, const std::string& name, Detour detour) {
    struct stat status;
    if (::fstatat(from.folder.get(), from.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return errno;
    if (S_ISDIR(status.st_mode)) return moveFolder(from, folder, name);
    return detour == Detour::byLink ? moveByLink(from, folder, name)
                                    : moveOverPlaceholder(from, folder, name);
}

}  // namespace tidewell::trash
