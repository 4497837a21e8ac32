#include "cleanup/user_dirs.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::size_t fileLimit = std::size_t{256} * 1024;
constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const auto begin = std::min(text.find_first_not_of(blanks), text.size());
    text.remove_prefix(begin);
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// What stands between the quotes, a backslash before a character taken away.
std::optional<std::string> unquoted(std::string_view text) {
    if (!text.starts_with('"')) return std::nullopt;
    std::string value;
    for (std::size_t at = 1; at < text.size(); ++at) {
        if (text[at] == '"') return value;
        if (text[at] == '\\' && at + 1 < text.size()) ++at;
        value += text[at];
    }
    return std::nullopt;
}

std::optional<std::string> pathOf(std::string_view value, const Host& host) {
    constexpr std::string_view home = "$HOME";
    if (value.find('\0') != std::string_view::npos) return std::nullopt;
    std::string path;
    if (value == home || value.starts_with("$HOME/")) {
        path = standardizedPath(host.home + std::string(value.substr(home.size())));
    } else if (value.starts_with('/')) {
        path = standardizedPath(host.pathNamedInside(standardizedPath(value)));
    } else {
        return std::nullopt;
    }
    if (isAtOrBelow(host.home, path)) return std::nullopt;
    return path;
}

std::optional<UserDir> parseLine(std::string_view line, const Host& host) {
    constexpr std::string_view prefix = "XDG_";
    constexpr std::string_view suffix = "_DIR";
    line = trimmed(line);
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    auto name = trimmed(line.substr(0, equals));
    const auto value = unquoted(trimmed(line.substr(equals + 1)));
    if (!name.starts_with(prefix) || !name.ends_with(suffix) || !value) return std::nullopt;
    if (name.size() <= prefix.size() + suffix.size()) return std::nullopt;
    name.remove_prefix(prefix.size());
    name.remove_suffix(suffix.size());
    auto path = pathOf(*value, host);
    if (!path) return std::nullopt;
    return UserDir{.kind = std::string(name), .path = std::move(*path)};
}

}  // namespace

std::vector<UserDir> parseUserDirs(std::string_view text, const Host& host) {
    std::vector<UserDir> found;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        if (auto folder = parseLine(text.substr(0, end), host)) found.push_back(std::move(*folder));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return found;
}

std::vector<UserDir> userDirs(const Host& host) {
    if (host.system != System::linux) return {};
    // Both count, since the desktop may have been told another place than this program.
    const std::set<std::string> places = {host.expand("{config}/user-dirs.dirs"),
                                          joinPath(host.home, ".config/user-dirs.dirs")};
    std::vector<UserDir> found;
    for (const auto& place : places)
        for (auto& folder : parseUserDirs(readFile(place, fileLimit).value_or(""), host))
            found.push_back(std::move(folder));
    return found;
}

}  // namespace tidewell
