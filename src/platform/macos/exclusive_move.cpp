#include <fcntl.h>
#include <stdio.h>
#include <sys/param.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>

#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/trash/exclusive_move.h"
#include "platform/trash/exclusive_rename.h"

// What the system's header of this name declares, where the compiler's headers lack it.

#if __has_include(<sys/xattr.h>)
#include <sys/xattr.h>
#else
inline constexpr int XATTR_NOFOLLOW = 1;

extern "C" {
ssize_t getxattr(const char* path, const char* name, void* value, std::size_t size,
                 std::uint32_t position, int options);
int setxattr(const char* path, const char* name, const void* value, std::size_t size,
             std::uint32_t position, int options);
int removexattr(const char* path, const char* name, int options);
}
#endif

namespace tidewell::trash {

namespace {

constexpr auto originAttribute = "io.tidewell.origin";

/// An entry is named by its path, since it may not be one that can be opened; empty if its folder's
/// is not told.
std::string pathIn(int folder, const std::string& name) {
    char path[MAXPATHLEN];
    if (::fcntl(folder, F_GETPATH, path) != 0) return {};
    return joinPath(path, name);
}

}  // namespace

int renameExclusively(const link_free::Place& from, int folder, const std::string& name) {
    return ::renameatx_np(from.folder.get(), from.name.c_str(), folder, name.c_str(), RENAME_EXCL);
}

void noteOrigin(int folder, const std::string& name, const std::string& origin) {
    ::setxattr(pathIn(folder, name).c_str(), originAttribute, origin.data(), origin.size(), 0,
               XATTR_NOFOLLOW);
}

std::optional<std::string> notedOrigin(int folder, const std::string& name) {
    return extendedAttribute(pathIn(folder, name), originAttribute);
}

void forgetOrigin(int folder, const std::string& name) {
    ::removexattr(pathIn(folder, name).c_str(), originAttribute, XATTR_NOFOLLOW);
}

}  // namespace tidewell::trash

namespace tidewell {

std::optional<std::string> extendedAttribute(const std::string& path, const std::string& name) {
    char value[4096];
    const auto length =
        ::getxattr(path.c_str(), name.c_str(), value, sizeof value, 0, XATTR_NOFOLLOW);
    if (length < 0) return std::nullopt;
    return std::string(value, static_cast<std::size_t>(length));
}

}  // namespace tidewell
