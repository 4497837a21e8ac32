#include "platform/linux/control_group.h"

#include <algorithm>
#include <vector>

#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell::linux_system {

namespace {

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    for (;;) {
        const auto end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return pieces;
        text.remove_prefix(end + 1);
    }
}

int digitOf(char character) {
    if (character >= '0' && character <= '9') return character - '0';
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    return -1;
}

bool isNumber(std::string_view text) {
    return !text.empty() &&
           std::ranges::all_of(text, [](char character) { return digitOf(character) >= 0; });
}

/// Units write characters that mean something in their names as "\x2d".
std::string unescaped(std::string_view name) {
    std::string text;
    while (!name.empty()) {
        if (name.starts_with("\\x") && name.size() >= 4 && digitOf(name[2]) >= 0 &&
            digitOf(name[3]) >= 0) {
            text += static_cast<char>(16 * digitOf(name[2]) + digitOf(name[3]));
            name.remove_prefix(4);
        } else {
            text += name.front();
            name.remove_prefix(1);
        }
    }
    return text;
}

std::optional<GroupedApplication> application(Packaging packaging, std::string_view id) {
    if (id.empty()) return std::nullopt;
    return GroupedApplication{.packaging = packaging, .id = unescaped(id)};
}

}  // namespace

std::optional<GroupedApplication> applicationOfUnit(std::string_view unit) {
    const bool isScope = unit.ends_with(".scope");
    if (!isScope && !unit.ends_with(".service")) return std::nullopt;
    auto name = unit.substr(0, unit.rfind('.'));
    if (name.starts_with("snap.")) return application(Packaging::snap, split(name, '.')[1]);
    if (!name.starts_with("app-")) return std::nullopt;
    auto pieces = split(name.substr(0, name.find('@')), '-');
    if (isScope && pieces.size() > 2 && isNumber(pieces.back())) pieces.pop_back();
    const bool isFlatpak = pieces.size() > 2 && pieces[1] == "flatpak";
    return application(isFlatpak ? Packaging::flatpak : Packaging::desktopEntry, pieces.back());
}

std::optional<GroupedApplication> applicationOfGroups(std::string_view text) {
    for (const auto line : split(text, '\n')) {
        // "0::/path", or "1:name=systemd:/path" where the old hierarchies are in use.
        const auto fields = split(line, ':');
        if (fields.size() < 3 || (fields[0] != "0" && fields[1] != "name=systemd")) continue;
        const auto units = pathPieces(line.substr(fields[0].size() + fields[1].size() + 2));
        for (auto unit = units.rbegin(); unit != units.rend(); ++unit)
            if (auto found = applicationOfUnit(*unit)) return found;
    }
    return std::nullopt;
}

}  // namespace tidewell::linux_system

namespace tidewell::posix {

std::optional<GroupedApplication> groupedApplication(std::int32_t process) {
    constexpr std::size_t longestText = 64 * 1024;
    const auto text = readFile("/proc/" + std::to_string(process) + "/cgroup", longestText);
    return text ? linux_system::applicationOfGroups(*text) : std::nullopt;
}

}  // namespace tidewell::posix
