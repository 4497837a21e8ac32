#include "platform/linux/whereabouts.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/posix/link_free.h"

namespace tidewell::linux_system {

namespace {

using posix::Descriptor;

/// The system tells no path that is longer than a page.
constexpr std::size_t longestPath = 4095;

/// So many names of a path cost as much as one more question.
constexpr std::size_t namesPerQuestion = 16;

/// Where the system tells of each descriptor which path it has by now. None without /proc.
Descriptor openOwnDescriptors() {
    Descriptor folder(::open("/proc/self/fd", O_PATH | O_DIRECTORY | O_CLOEXEC));
    struct statfs status;
    const bool isGenuine =
        folder && ::fstatfs(folder.get(), &status) == 0 && status.f_type == PROC_SUPER_MAGIC;
    return isGenuine ? std::move(folder) : Descriptor();
}

bool removeEnd(std::string_view& text, std::string_view end) {
    if (!text.ends_with(end)) return false;
    text.remove_suffix(end.size());
    return true;
}

/// A folder that was removed holds nothing any more that could be lost.
bool isGone(int folder) {
    struct stat status;
    return ::fstat(folder, &status) == 0 && status.st_nlink == 0;
}

}  // namespace

Whereabouts::Whereabouts(std::string topPath)
    : topPath_(std::move(topPath)), ownDescriptors_(openOwnDescriptors()) {}

bool Whereabouts::isInPlace(const TreeFolder& folder, const OpenFolder& open) const {
    if (isTellable(folder)) {
        std::array<char, longestPath + 1> buffer;
        const auto path = pathOf(open->get(), buffer.data());
        if (path && isPathOf(*path, folder)) return true;
    }
    // The path may also be told in other words: in letters of another case where that does not
    // count, or as "(deleted)" where a file system over a network has looked it up anew.
    return isGone(open->get()) || isFoundByName(folder, open);
}

std::size_t Whereabouts::costOf(const TreeFolder& folder) const {
    const auto length = topPath_.size() + folder.pathLength();
    const auto told = ownDescriptors_ ? std::min(length, longestPath) : 0;
    const auto climbed = folder.level() * (length - told) / length;
    return climbed + (folder.level() - climbed) / namesPerQuestion;
}

bool Whereabouts::isTellable(const TreeFolder& folder) const {
    return ownDescriptors_ && topPath_.size() + folder.pathLength() <= longestPath;
}

std::optional<std::string_view> Whereabouts::pathOf(int descriptor, char* buffer) const {
    std::array<char, 16> name{};
    std::to_chars(name.data(), name.data() + name.size() - 1, descriptor);
    const auto length = ::readlinkat(ownDescriptors_.get(), name.data(), buffer, longestPath + 1);
    if (length < 0) return std::nullopt;
    return std::string_view(buffer, static_cast<std::size_t>(length));
}

bool Whereabouts::isPathOf(std::string_view path, const TreeFolder& folder) const {
    for (const auto* at = &folder; at->above(); at = at->above())
        if (!removeEnd(path, at->name()) || !removeEnd(path, "/")) return false;
    return path == topPath_ || (path.empty() && topPath_ == "/");
}

/// Level by level: by ".." to the folder above, and from there by the name to this one.
bool Whereabouts::isFoundByName(const TreeFolder& folder, OpenFolder open) const {
    std::array<char, longestPath + 1> buffer;
    for (const auto* at = &folder; at->above(); at = at->above()) {
        const auto& parent = *at->above();
        Descriptor above(::openat(open->get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!above || mountedFolder(above.get()) != parent.which()) return false;
        if (mountedFolder(above.get(), at->name().c_str()) != at->which()) return false;
        open = std::make_shared<const Descriptor>(std::move(above));
        if (isTellable(parent) && !isTellable(*at)) {
            const auto path = pathOf(open->get(), buffer.data());
            if (path && isPathOf(*path, parent)) return true;
        }
    }
    const auto there = link_free::openPlace(topPath_);
    return there && mountedFolder(there.get()) == mountedFolder(open->get());
}

}  // namespace tidewell::linux_system
