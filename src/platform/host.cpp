#include "platform/host.h"

#include <array>
#include <utility>

#include "platform/path_text.h"

namespace tidewell {

namespace {

using Token = std::pair<std::string_view, std::string BaseFolders::*>;

constexpr std::array<Token, 4> baseFolderTokens = {{
    {"{cache}", &BaseFolders::cache},
    {"{config}", &BaseFolders::config},
    {"{data}", &BaseFolders::data},
    {"{state}", &BaseFolders::state},
}};

}  // namespace

std::string Host::systemPath(std::string_view absolute) const {
    return root == "/" ? std::string(absolute) : root + std::string(absolute);
}

std::string Host::pathNamedInside(std::string_view absolute) const {
    const auto path = standardizedPath(absolute);
    return throughHome(isAtOrBelow(path, root) ? path : systemPath(path));
}

std::string Host::throughHome(std::string_view path) const {
    if (namedHome.empty() || !isAtOrBelow(path, namedHome)) return std::string(path);
    return home + std::string(path.substr(namedHome.size()));
}

Host::Split Host::split(std::string_view path) const {
    if (path.starts_with('~') && isAtOrBelow(path, "~")) return {home, path.substr(1)};
    if (path.starts_with('{'))
        for (const auto& [token, folder] : baseFolderTokens)
            if (isAtOrBelow(path, token)) return {baseFolders.*folder, path.substr(token.size())};
    return {{}, path};
}

std::string Host::expand(std::string_view path) const {
    const auto [folder, rest] = split(path);
    if (folder.ends_with('/') && rest.starts_with('/')) return joinPath(folder, rest.substr(1));
    return std::string(folder).append(rest);
}

std::string Host::locate(std::string_view tablePath) const {
    return tablePath.starts_with('/') ? systemPath(tablePath) : expand(tablePath);
}

std::string_view Host::relativeToHome(std::string_view path) const {
    return pathRelativeTo(path, home);
}

}  // namespace tidewell
