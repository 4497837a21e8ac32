#include <sys/xattr.h>

#include <cstdio>

#include "platform/files.h"
#include "platform/trash/exclusive_move.h"
#include "platform/trash/exclusive_rename.h"

namespace tidewell::trash {

namespace {

/// By a path below the descriptor, since the entry may not be one that can be opened.
std::string pathThrough(int folder, const std::string& name) {
    return "/proc/self/fd/" + std::to_string(folder) + "/" + name;
}

constexpr auto originAttribute = "user.tidewell.origin";

}  // namespace

int renameExclusively(const link_free::Place& from, int folder, const std::string& name) {
    return ::renameat2(from.folder.get(), from.name.c_str(), folder, name.c_str(),
                       RENAME_NOREPLACE);
}

void noteOrigin(int folder, const std::string& name, const std::string& origin) {
    ::lsetxattr(pathThrough(folder, name).c_str(), originAttribute, origin.data(), origin.size(),
                0);
}

std::optional<std::string> notedOrigin(int folder, const std::string& name) {
    return extendedAttribute(pathThrough(folder, name), "tidewell.origin");
}

void forgetOrigin(int folder, const std::string& name) {
    ::lremovexattr(pathThrough(folder, name).c_str(), originAttribute);
}

}  // namespace tidewell::trash
