#include "platform/posix/sized_folder.h"

namespace tidewell::posix {

namespace {

constexpr ByteCount bytesPerBlock = 512;
constexpr std::size_t mostShared = 1'000'000;

using Pointer = FolderPointer<SizedFolder>;

Pointer innermostWithBoth(Pointer one, Pointer other) {
    while (one.get() != other.get()) {
        if (one->level() >= other->level()) {
            one = one.above();
        } else {
            other = other.above();
        }
    }
    return one;
}

}  // namespace

SizedFolder::SizedFolder(TreeFolder* above, std::string name, MountedFolder which)
    : TreeFolder(above, std::move(name), which),
      sizing_(above ? static_cast<SizedFolder*>(above)->sizing_ : nullptr) {}

SizedFolder::~SizedFolder() {
    if (!sizing_) return;
    if (above()) {
        static_cast<SizedFolder*>(above())->take(*this);
    } else {
        sizing_->tree.add(
            sizing_->top,
            {.bytes = bytes_, .things = things_, .isUnread = isUnread_, .children = children_});
    }
}

void SizedFolder::add(std::string_view file, ByteCount bytes) {
    addThing();
    bytes_ += bytes;
    if (!sizing_->tree.isWorthKeeping(bytes)) return;
    sizing_->tree.add(children_,
                      {.name = std::string(file), .type = SizedEntry::Type::file, .bytes = bytes});
}

void SizedFolder::take(SizedFolder& folder) {
    const ByteCount bytes = folder.bytes_;
    addThing();
    bytes_ += bytes;
    if (folder.isUnread_) markUnread();
    if (!sizing_->tree.isWorthKeeping(bytes)) return sizing_->tree.drop(folder.children_);
    sizing_->tree.add(children_, {.name = folder.name(),
                                  .bytes = bytes,
                                  .things = folder.things_,
                                  .isUnread = folder.isUnread_,
                                  .children = folder.children_});
}

ByteCount SharedFiles::meet(const struct stat& status, const Pointer& folder) {
    folder->addThing();
    const std::lock_guard lock(mutex_);
    const std::pair file(status.st_dev, status.st_ino);
    auto at = files_.find(file);
    if (at == files_.end()) {
        if (files_.size() >= mostShared) return 0;
        at = files_.emplace(file, Met{.namesLeft = status.st_nlink, .folder = folder}).first;
    }
    auto& met = at->second;
    // Met more often than it has names: through a mount, or because one was moved.
    if (met.namesLeft == 0) return 0;
    met.folder = innermostWithBoth(std::move(met.folder), folder);
    if (--met.namesLeft > 0) return 0;
    const ByteCount size = status.st_blocks * bytesPerBlock;
    std::exchange(met.folder, {})->addShared(size);
    return size;
}

}  // namespace tidewell::posix
