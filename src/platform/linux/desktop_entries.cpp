#include "platform/linux/desktop_entries.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <memory>
#include <set>

#include "platform/files.h"
#include "platform/folder_walk.h"
#include "platform/path_text.h"

namespace tidewell::linux_system {

namespace {

constexpr std::size_t longestEntry = 1024 * 1024;
constexpr std::string_view extension = ".desktop";

/// Programs that run other programs, by the beginning of their names.
constexpr std::array<std::string_view, 18> launchers{
    "sh",   "bash", "dash", "zsh",     "env",  "python",   "perl",   "ruby", "node",
    "java", "mono", "wine", "flatpak", "snap", "electron", "pkexec", "sudo", "gjs",
};

std::string environmentValue(const char* name, std::string otherwise) {
    const char* value = std::getenv(name);
    return value && *value ? value : std::move(otherwise);
}

/// The pieces of a list of folders such as "/usr/local/bin:/usr/bin".
std::vector<std::string> searchFolders(std::string_view list) {
    std::vector<std::string> folders;
    while (!list.empty()) {
        const auto end = std::min(list.find(':'), list.size());
        if (list.starts_with('/')) folders.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return folders;
}

std::vector<std::string> entryFolders(const Host& host) {
    const auto own = environmentValue("XDG_DATA_HOME", joinPath(host.home, ".local/share"));
    const auto shared = environmentValue("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
    std::vector<std::string> folders;
    for (const auto& folder : searchFolders(own + ':' + shared))
        folders.push_back(joinPath(folder, "applications"));
    return folders;
}

std::optional<std::string> realProgram(const std::string& path) {
    if (::access(path.c_str(), X_OK) != 0) return std::nullopt;
    const std::unique_ptr<char, void (*)(void*)> resolved(::realpath(path.c_str(), nullptr),
                                                          std::free);
    return resolved ? std::optional<std::string>(resolved.get()) : std::nullopt;
}

std::optional<std::string> findProgram(const std::string& program) {
    if (program.starts_with('/')) return realProgram(program);
    if (program.empty() || program.find('/') != std::string::npos) return std::nullopt;
    for (const auto& folder :
         searchFolders(environmentValue("PATH", "/usr/local/bin:/usr/bin:/bin")))
        if (auto found = realProgram(joinPath(folder, program))) return found;
    return std::nullopt;
}

/// "python3.11" is "python", "shotwell" is not "sh".
bool isLauncher(std::string_view executable) {
    const auto name = lastPathComponent(executable);
    return std::ranges::any_of(launchers, [name](std::string_view launcher) {
        return name.starts_with(launcher) &&
               name.find_first_not_of("0123456789.-", launcher.size()) == std::string_view::npos;
    });
}

bool isTrue(std::string_view value) {
    return value == "true" || value == "1";
}

/// The first word of a command, its quotes taken off.
std::string firstWord(std::string_view command) {
    std::string word;
    bool isQuoted = false;
    for (std::size_t at = 0; at < command.size(); ++at) {
        const char character = command[at];
        if (character == '"') {
            isQuoted = !isQuoted;
        } else if (character == ' ' && !isQuoted) {
            break;
        } else {
            const bool isEscape = character == '\\' && isQuoted && at + 1 < command.size();
            word += isEscape ? command[++at] : character;
        }
    }
    return word;
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

/// An entry's identifier: the pieces of its path below the folder of entries, without the
/// extension.
std::string entryIdentifier(std::string_view folder, std::string_view file) {
    std::string id(pathRelativeTo(file, folder));
    id.resize(id.size() - extension.size());
    std::ranges::replace(id, '/', '-');
    return id;
}

}  // namespace

DesktopEntryText parseDesktopEntry(std::string_view text) {
    DesktopEntryText entry;
    bool isInGroup = false;
    bool isApplication = false;
    bool isHidden = false;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const auto line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with('[')) isInGroup = line == "[Desktop Entry]";
        const auto equals = line.find('=');
        if (!isInGroup || line.starts_with('#') || equals == std::string_view::npos) continue;
        const auto key = trimmed(line.substr(0, equals));
        const auto value = trimmed(line.substr(equals + 1));
        if (key == "Type") isApplication = value == "Application";
        if (key == "Name") entry.name = unescaped(value);
        if (key == "Exec") entry.program = firstWord(unescaped(value));
        if (key == "NoDisplay" || key == "Hidden") isHidden = isHidden || isTrue(value);
    }
    entry.isVisible = isApplication && !isHidden;
    return entry;
}

std::vector<DesktopEntry> visibleDesktopEntries(const Host& host) {
    std::vector<DesktopEntry> entries;
    std::set<std::string> seen;  // an entry of the user's own stands for the system's of its name
    for (const auto& folder : entryFolders(host))
        walkFolder(folder, HiddenEntries::passOver, [&](const WalkEntry& file) {
            if (!std::string_view(file.path).ends_with(extension)) return Descent::enter;
            auto id = entryIdentifier(folder, file.path);
            const auto text = readFile(std::string(file.path), longestEntry);
            if (!text || !seen.insert(id).second) return Descent::skip;
            auto entry = parseDesktopEntry(*text);
            auto executable = entry.isVisible ? findProgram(entry.program) : std::nullopt;
            if (executable && !isLauncher(*executable))
                entries.push_back({.id = std::move(id),
                                   .name = std::move(entry.name),
                                   .executable = std::move(*executable)});
            return Descent::skip;
        });
    return entries;
}

}  // namespace tidewell::linux_system
