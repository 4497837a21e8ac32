#include "platform/posix/tree_folder.h"

#include <fcntl.h>

#include <cerrno>
#include <ranges>
#include <vector>

namespace tidewell::posix {

TreeFolder::TreeFolder(TreeFolder* above, std::string name, MountedFolder which)
    : above_(above),
      name_(std::move(name)),
      which_(which),
      level_(above ? above->level_ + 1 : 0),
      pathLength_(above ? above->pathLength_ + 1 + name_.size() : 0) {
    if (above_) above_->addReference();
}

// A loop and no recursion: a tree may be deeper than a stack.
void TreeFolder::dropReference(TreeFolder* folder) {
    while (folder && folder->references_.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        auto* const above = folder->above_;
        delete folder;
        folder = above;
    }
}

OpenFolder TreeFolder::hold(Descriptor folder) {
    auto held = std::make_shared<const Descriptor>(std::move(folder));
    const std::lock_guard lock(mutex_);
    held_ = held;
    return held;
}

OpenFolder TreeFolder::held() const {
    const std::lock_guard lock(mutex_);
    return held_.lock();
}

OpenFolder TreeFolder::holdIfSame(Descriptor folder) {
    if (!folder) return nullptr;
    if (mountedFolder(folder.get()) == which_) return hold(std::move(folder));
    errno = ENOENT;
    return nullptr;
}

OpenFolder TreeFolder::open() {
    std::vector<TreeFolder*> closed;
    auto* at = this;
    auto open = at->held();
    for (; !open && at->above_; open = at->held()) {
        closed.push_back(at);
        at = at->above_;
    }
    errno = ENOENT;
    for (auto* next : closed | std::views::reverse) {
        if (!open) return nullptr;
        open = next->holdIfSame(
            Descriptor(::openat(open->get(), next->name_.c_str(), openFolderFlags)));
    }
    return open;
}

OpenFolder TreeFolder::openFrom(const TreeFolder& folderBelow, const OpenFolder& below) {
    if (auto open = held()) return open;
    if (auto open = climbFrom(folderBelow, below)) return open;
    return open();
}

/// Believed only if each step leads to the folder that lay above: this one may have been moved.
OpenFolder TreeFolder::climbFrom(const TreeFolder& folderBelow, OpenFolder below) {
    const auto* at = &folderBelow;
    while (below && at->level_ > level_) {
        auto& above = *at->above_;
        auto open = above.held();
        if (!open)
            open = above.holdIfSame(Descriptor(::openat(below->get(), "..", openFolderFlags)));
        below = std::move(open);
        at = &above;
    }
    return at == this ? below : nullptr;
}

bool TreeFolder::isLoop(const MountedFolder& folder) const {
    // Without a step to another mount there is no circle, so the search is rarely made.
    if (folder.mount != 0 && folder.mount == which_.mount) return false;
    for (const auto* above = this; above; above = above->above_)
        if (above->which_.folder == folder.folder) return true;
    return false;
}

}  // namespace tidewell::posix
