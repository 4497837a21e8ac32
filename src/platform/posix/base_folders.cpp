#include "platform/posix/base_folders.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/environment.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/user_folders.h"

namespace tidewell::posix {

namespace {

struct BaseFolder {
    const char* variable;
    std::string BaseFolders::*folder;
    std::string_view usual;
};

constexpr std::array<BaseFolder, 4> baseFolders = {{
    {"XDG_CACHE_HOME", &BaseFolders::cache, ".cache"},
    {"XDG_CONFIG_HOME", &BaseFolders::config, ".config"},
    {"XDG_DATA_HOME", &BaseFolders::data, ".local/share"},
    {"XDG_STATE_HOME", &BaseFolders::state, ".local/state"},
}};

/// With all links resolved on the way, also for a folder that is still to be made; absent if a link
/// leads nowhere, for it would be followed as soon as it does.
std::optional<std::string> realPlace(const std::string& path) {
    if (auto real = resolvedPath(path)) return real;
    const bool isDanglingLink = modificationDate(path).has_value();
    if (path == "/" || isDanglingLink) return std::nullopt;
    const auto parent = realPlace(std::string(parentPath(path)));
    if (!parent) return std::nullopt;
    return joinPath(*parent, lastPathComponent(path));
}

bool isUsersOwn(std::string_view place, const std::string& home, System system) {
    const auto first = pathPieces(pathRelativeTo(place, home)).front();
    return std::ranges::find(userFolderNames(system), first) != userFolderNames(system).end();
}

bool overlaps(std::string_view place, std::string_view other) {
    return isAtOrBelow(place, other) || isBelow(other, place);
}

}  // namespace

BaseFolders usualBaseFolders(const std::string& home) {
    BaseFolders folders;
    for (const auto& base : baseFolders) folders.*base.folder = joinPath(home, base.usual);
    return folders;
}

BaseFolders baseFoldersOfEnvironment(const std::string& home, System system) {
    auto folders = usualBaseFolders(home);
    for (const auto& base : baseFolders) {
        const auto wanted = environmentValue(base.variable);
        if (!wanted.starts_with('/')) continue;
        const auto place = realPlace(standardizedPath(wanted));
        if (!place || !isBelow(*place, home) || isUsersOwn(*place, home, system)) continue;
        const bool isTaken = std::ranges::any_of(baseFolders, [&](const auto& other) {
            return other.folder != base.folder && overlaps(*place, folders.*other.folder);
        });
        if (!isTaken) folders.*base.folder = *place;
    }
    return folders;
}

}  // namespace tidewell::posix
