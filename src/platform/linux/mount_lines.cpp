#include "platform/linux/mount_lines.h"

#include <algorithm>
#include <utility>

namespace tidewell::linux_system {

namespace {

/// Up to the next blank or line end, which is left out of `text` with what stands before it.
std::string_view cutOff(std::string_view& text, char end) {
    const auto length = std::min(text.find(end), text.size());
    const auto piece = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return piece;
}

bool isOctal(std::string_view digits) {
    return digits.size() == 3 && digits.front() <= '3' &&
           std::ranges::all_of(digits, [](char digit) { return digit >= '0' && digit <= '7'; });
}

/// Blanks, line ends and backslashes in a path stand as a backslash and three octal digits.
std::string unescaped(std::string_view field) {
    std::string path;
    for (std::size_t at = 0; at < field.size(); ++at) {
        const auto digits = field.substr(at + 1, 3);
        if (field[at] != '\\' || !isOctal(digits)) {
            path += field[at];
            continue;
        }
        path += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + digits[2] - '0');
        at += digits.size();
    }
    return path;
}

}  // namespace

/// "36 35 98:0 /part /place options tags... - kind source options"
std::vector<MountTable::Mount> mountsOfLines(std::string_view lines) {
    std::vector<MountTable::Mount> mounts;
    while (!lines.empty()) {
        auto line = cutOff(lines, '\n');
        MountTable::Mount mount;
        mount.id = cutOff(line, ' ');
        mount.parent = cutOff(line, ' ');
        mount.disk = cutOff(line, ' ');
        mount.part = unescaped(cutOff(line, ' '));
        mount.place = unescaped(cutOff(line, ' '));
        while (!line.empty() && cutOff(line, ' ') != "-") continue;
        mount.kind = cutOff(line, ' ');
        if (mount.part.starts_with('/') && mount.place.starts_with('/'))
            mounts.push_back(std::move(mount));
    }
    return mounts;
}

}  // namespace tidewell::linux_system
