#include "platform/posix/whereabouts.h"

#include <sys/stat.h>

#include <algorithm>

#include "platform/posix/link_free.h"

namespace tidewell::posix {

namespace {

/// So many names of a path cost as much as one more question.
constexpr std::size_t namesPerQuestion = 16;

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

Whereabouts::Whereabouts(std::string topPath) : topPath_(std::move(topPath)) {}

bool Whereabouts::isInPlace(const TreeFolder& folder, const OpenFolder& open) const {
    if (isTellable(folder)) {
        DescriptorPaths::Buffer buffer;
        const auto path = paths_.pathOf(open->get(), buffer);
        if (path && isPathOf(*path, folder)) return true;
    }
    // The path may also be told in other words: in letters of another case where that does not
    // count, or as "(deleted)" where a file system over a network has looked it up anew.
    return isGone(open->get()) || isFoundByName(folder, open);
}

std::size_t Whereabouts::costOf(const TreeFolder& folder) const {
    const auto length = topPath_.size() + folder.pathLength();
    const auto told = std::min(length, paths_.longest());
    const auto climbed = folder.level() * (length - told) / length;
    return climbed + (folder.level() - climbed) / namesPerQuestion;
}

bool Whereabouts::isTellable(const TreeFolder& folder) const {
    return topPath_.size() + folder.pathLength() <= paths_.longest();
}

bool Whereabouts::isPathOf(std::string_view path, const TreeFolder& folder) const {
    for (const auto* at = &folder; at->above(); at = at->above())
        if (!removeEnd(path, at->name()) || !removeEnd(path, "/")) return false;
    return path == topPath_ || (path.empty() && topPath_ == "/");
}

/// Level by level: by ".." to the folder above, and from there by the name to this one.
bool Whereabouts::isFoundByName(const TreeFolder& folder, OpenFolder open) const {
    DescriptorPaths::Buffer buffer;
    for (const auto* at = &folder; at->above(); at = at->above()) {
        const auto& parent = *at->above();
        auto above = link_free::openPlaceIn(open->get(), "..");
        if (!above || mountedFolder(above.get()) != parent.which()) return false;
        if (mountedFolder(above.get(), at->name().c_str()) != at->which()) return false;
        open = std::make_shared<const Descriptor>(std::move(above));
        if (isTellable(parent) && !isTellable(*at)) {
            const auto path = paths_.pathOf(open->get(), buffer);
            if (path && isPathOf(*path, parent)) return true;
        }
    }
    const auto there = link_free::openPlace(topPath_);
    return there && mountedFolder(there.get()) == mountedFolder(open->get());
}

}  // namespace tidewell::posix
