#include "platform/desktop_entry.h"

#include <algorithm>
#include <array>
#include <set>

#include "platform/environment.h"
#include "platform/files.h"
#include "platform/folder_walk.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::size_t longestEntry = 1024 * 1024;
constexpr std::string_view extension = ".desktop";

/// By the beginning of their names.
constexpr std::array<std::string_view, 18> launchers{
    "sh",   "bash", "dash", "zsh",     "env",  "python",   "perl",   "ruby", "node",
    "java", "mono", "wine", "flatpak", "snap", "electron", "pkexec", "sudo", "gjs",
};

bool isTrue(std::string_view value) {
    return value == "true" || value == "1";
}

/// A value's text: "\s" and the like stand for characters that a line cannot hold.
std::string unescaped(std::string_view value) {
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        if (value[at] != '\\' || at + 1 == value.size()) {
            text += value[at];
            continue;
        }
        const char code = value[++at];
        text += code == 's'   ? ' '
                : code == 'n' ? '\n'
                : code == 't' ? '\t'
                : code == 'r' ? '\r'
                              : code;
    }
    return text;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// The pieces of a list, empty ones left out.
std::vector<std::string> piecesOf(std::string_view list, char separator) {
    std::vector<std::string> pieces;
    while (!list.empty()) {
        const auto end = std::min(list.find(separator), list.size());
        if (end > 0) pieces.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return pieces;
}

void take(DesktopEntry& entry, std::string_view key, std::string_view value) {
    if (key == "Type") entry.type = value;
    if (key == "Name") entry.name = unescaped(value);
    if (key == "Exec") entry.exec = unescaped(value);
    if (key == "TryExec") entry.tryExec = unescaped(value);
    if (key == "Icon") entry.icon = unescaped(value);
    if (key == "StartupWMClass") entry.startupWMClass = unescaped(value);
    if (key == "OnlyShowIn") entry.onlyShowIn = piecesOf(value, ';');
    if (key == "NotShowIn") entry.notShowIn = piecesOf(value, ';');
    if (key == "Hidden") entry.isHidden = isTrue(value);
    if (key == "NoDisplay") entry.isShownInMenus = !isTrue(value);
    if (key == "X-GNOME-Autostart-enabled") entry.startsWithSession = isTrue(value);
}

/// A list of folders such as "/usr/local/bin:/usr/bin", on the machine: from the environment if
/// this is the user's own, else the usual one.
std::vector<std::string> searchFolders(const Host& host, const char* variable,
                                       std::string_view usual) {
    const auto said = host.root == "/" ? environmentValue(variable) : std::string();
    std::vector<std::string> folders;
    for (const auto& folder : piecesOf(said.empty() ? usual : said, ':'))
        if (folder.starts_with('/')) folders.push_back(host.systemPath(standardizedPath(folder)));
    return folders;
}

/// An entry's identifier: the pieces of its path below the folder of entries, without the
/// extension.
std::string entryIdentifier(std::string_view folder, std::string_view file) {
    std::string id(pathRelativeTo(file, folder));
    id.resize(id.size() - extension.size());
    std::ranges::replace(id, '/', '-');
    return id;
}

}  // namespace

DesktopEntry parseDesktopEntry(std::string_view text) {
    DesktopEntry entry;
    bool isInGroup = false;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const auto line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with('[')) isInGroup = line == "[Desktop Entry]";
        const auto equals = line.find('=');
        if (!isInGroup || line.starts_with('#') || equals == std::string_view::npos) continue;
        take(entry, trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
    }
    return entry;
}

std::optional<DesktopEntry> readDesktopEntry(const std::string& path) {
    const auto text = readFile(path, longestEntry);
    return text ? std::optional(parseDesktopEntry(*text)) : std::nullopt;
}

std::vector<std::string> commandWords(std::string_view exec) {
    std::vector<std::string> words;
    std::string word;
    bool isQuoted = false;
    bool isBegun = false;
    const auto end = [&] {
        const bool isFieldCode = word.size() == 2 && word.front() == '%' && word.back() != '%';
        if (isBegun && !isFieldCode) words.push_back(word);
        word.clear();
        isBegun = false;
    };
    for (std::size_t at = 0; at < exec.size(); ++at) {
        const char character = exec[at];
        if (character == '"') {
            isQuoted = !isQuoted;
            isBegun = true;
        } else if ((character == ' ' || character == '\t') && !isQuoted) {
            end();
        } else {
            const bool isEscape = character == '\\' && isQuoted && at + 1 < exec.size();
            word += isEscape ? exec[++at] : character;
            isBegun = true;
        }
    }
    end();
    return words;
}

std::optional<std::string> namedProgram(const Host& host, std::string_view word) {
    const auto realProgram = [&](const std::string& path) -> std::optional<std::string> {
        auto real = resolvedPath(path);
        const bool isInside = real && (host.root == "/" || isBelow(*real, host.root));
        return isInside && isProgram(*real) ? real : std::nullopt;
    };
    if (word.starts_with('/')) return realProgram(host.pathNamedInside(word));
    if (word.empty() || word.find('/') != std::string_view::npos) return std::nullopt;
    for (const auto& folder :
         searchFolders(host, "PATH", "/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games"))
        if (auto found = realProgram(joinPath(folder, word))) return found;
    return std::nullopt;
}

bool isLauncher(std::string_view program) {
    const auto name = lastPathComponent(program);
    return std::ranges::any_of(launchers, [name](std::string_view launcher) {
        return name.starts_with(launcher) &&
               name.find_first_not_of("0123456789.-", launcher.size()) == std::string_view::npos;
    });
}

std::vector<std::string> dataFolders(const Host& host) {
    auto folders = searchFolders(host, "XDG_DATA_DIRS", "/usr/local/share:/usr/share");
    folders.insert(folders.begin(), host.baseFolders.data);
    return folders;
}

std::vector<std::string> settingFolders(const Host& host) {
    auto folders = searchFolders(host, "XDG_CONFIG_DIRS", "/etc/xdg");
    folders.insert(folders.begin(), host.baseFolders.config);
    return folders;
}

std::vector<std::string> sessionDesktops(const Host& host) {
    if (host.root != "/") return {};
    auto desktops = piecesOf(environmentValue("XDG_CURRENT_DESKTOP"), ':');
    std::erase(desktops, "");
    return desktops;
}

std::vector<EntryFile> applicationEntries(const Host& host) {
    std::vector<EntryFile> entries;
    std::set<std::string> seen;
    for (const auto& data : dataFolders(host)) {
        const auto folder = joinPath(data, "applications");
        walkFolder(folder, HiddenEntries::passOver, [&](const WalkEntry& file) {
            if (!file.path.ends_with(extension)) return Descent::enter;
            auto entry = readDesktopEntry(std::string(file.path));
            auto id = entryIdentifier(folder, file.path);
            const bool isFirst = entry && seen.insert(id).second;
            if (isFirst && entry->type == "Application")
                entries.push_back({.id = std::move(id),
                                   .path = std::string(file.path),
                                   .entry = *std::move(entry)});
            return Descent::skip;
        });
    }
    return entries;
}

}  // namespace tidewell
