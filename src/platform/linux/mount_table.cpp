#include "platform/mount_table.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <utility>

#include "platform/path_text.h"
#include "platform/posix/read_whole.h"

namespace tidewell {

namespace {

constexpr std::size_t tableLimit = std::size_t{16} * 1024 * 1024;

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

/// `path`, which lies at or below `from`, seen from `to`.
std::string moved(std::string_view path, std::string_view from, std::string_view to) {
    const auto rest = path == from ? std::string_view() : pathRelativeTo(path, from);
    return rest.empty() ? std::string(to) : joinPath(to, rest);
}

}  // namespace

MountTable MountTable::read() {
    const posix::Descriptor table(::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC));
    return MountTable(posix::readWhole(table, tableLimit).value_or(std::string()));
}

/// "36 35 98:0 /part /place options tags... - kind source options"
MountTable::MountTable(std::string_view lines) {
    while (!lines.empty()) {
        auto line = cutOff(lines, '\n');
        Mount mount;
        mount.id = cutOff(line, ' ');
        mount.parent = cutOff(line, ' ');
        mount.disk = cutOff(line, ' ');
        mount.part = unescaped(cutOff(line, ' '));
        mount.place = unescaped(cutOff(line, ' '));
        while (!line.empty() && cutOff(line, ' ') != "-") continue;
        mount.kind = cutOff(line, ' ');
        if (mount.part.starts_with('/') && mount.place.starts_with('/'))
            mounts_.push_back(std::move(mount));
    }
}

const MountTable::Mount* MountTable::root() const {
    const auto found = std::ranges::find(mounts_, "/", &Mount::place);
    return found == mounts_.end() ? nullptr : &*found;
}

/// Goes down from mount to mount as the system does when it looks a path up, so that one which
/// another covers is not taken.
const MountTable::Mount* MountTable::holding(std::string_view path) const {
    const auto* found = root();
    for (std::size_t steps = 0; found && steps < mounts_.size(); ++steps) {
        const Mount* next = nullptr;
        for (const auto& mount : mounts_) {
            if (&mount == found || mount.parent != found->id || !isAtOrBelow(path, mount.place))
                continue;
            if (!next || mount.place.size() < next->place.size()) next = &mount;
        }
        if (!next) return found;
        found = next;
    }
    return found;
}

std::vector<std::string> MountTable::otherPaths(std::string_view path) const {
    const auto* mount = holding(path);
    if (!mount) return {};
    const auto onDisk = moved(path, mount->place, mount->part);
    std::vector<std::string> paths;
    for (const auto& other : mounts_) {
        if (&other == mount || other.disk != mount->disk || !isAtOrBelow(onDisk, other.part))
            continue;
        auto otherPath = moved(onDisk, other.part, other.place);
        if (otherPath != path) paths.push_back(std::move(otherPath));
    }
    return paths;
}

std::vector<std::string> MountTable::placesBelow(std::string_view folder) const {
    std::vector<std::string> places;
    for (const auto& mount : mounts_)
        if (isBelow(mount.place, folder)) places.push_back(mount.place);
    return places;
}

std::optional<std::uint64_t> mountNumber(const std::string& path) {
    struct statx status;
    const int found = ::statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_MNT_ID, &status);
    if (found != 0 || !(status.stx_mask & STATX_MNT_ID)) return std::nullopt;
    return status.stx_mnt_id;
}

}  // namespace tidewell
