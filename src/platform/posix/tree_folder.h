#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "platform/posix/descriptor.h"
#include "platform/posix/mounted_folder.h"

namespace tidewell::posix {

/// An open folder that several may use; it is closed with the last of them.
using OpenFolder = std::shared_ptr<const Descriptor>;

/// A folder of a tree that is walked, measured or removed: its name, which one it is, and the one
/// above, which is known as long as anybody is below. It need not stay open: who comes back to it
/// opens it again, by ".." from below or by the names from above, and is only led to the very
/// folder that was left. May be used by several threads at once.
class TreeFolder {
 public:
    /// Without a folder above it is the tree's top.
    TreeFolder(TreeFolder* above, std::string name, MountedFolder which);
    TreeFolder(const TreeFolder&) = delete;
    TreeFolder& operator=(const TreeFolder&) = delete;
    virtual ~TreeFolder() = default;

    TreeFolder* above() const { return above_; }
    const std::string& name() const { return name_; }
    const MountedFolder& which() const { return which_; }
    std::size_t level() const { return level_; }            ///< 0 for the top
    std::size_t pathLength() const { return pathLength_; }  ///< of its path below the top

    /// Makes a descriptor of this folder known to all who come here while it is open.
    OpenFolder hold(Descriptor folder);
    /// None while nobody holds it open.
    OpenFolder held() const;

    /// Finds the way from the nearest folder above that is open. None if the folder is not to be
    /// found where it was, with the reason in errno if it is a lack of descriptors.
    OpenFolder open();
    /// The same, and climbs from a folder below first: nothing is walked from the top for each
    /// level of a deep tree. `below` may be none.
    OpenFolder openFrom(const TreeFolder& folderBelow, const OpenFolder& below);

    /// Whether entering this folder from here would lead in a circle, as mounts can make one.
    bool isLoop(const MountedFolder& folder) const;

    void addReference() { references_.fetch_add(1, std::memory_order_relaxed); }
    static void dropReference(TreeFolder* folder);

 private:
    OpenFolder climbFrom(const TreeFolder& folderBelow, OpenFolder below);
    OpenFolder holdIfSame(Descriptor folder);

    std::atomic<std::size_t> references_ = 1;
    TreeFolder* const above_;
    const std::string name_;
    const MountedFolder which_;
    const std::size_t level_;
    const std::size_t pathLength_;
    mutable std::mutex mutex_;
    std::weak_ptr<const Descriptor> held_;
};

/// Keeps a folder, and all above it, known. `Folder` is TreeFolder or what a user of trees makes of
/// it; all folders of one tree are of the same kind.
template <class Folder>
class FolderPointer {
 public:
    FolderPointer() = default;
    FolderPointer(const FolderPointer& other) : folder_(other.folder_) {
        if (folder_) folder_->addReference();
    }
    FolderPointer(FolderPointer&& other) noexcept
        : folder_(std::exchange(other.folder_, nullptr)) {}
    FolderPointer& operator=(FolderPointer other) noexcept {
        std::swap(folder_, other.folder_);
        return *this;
    }
    ~FolderPointer() { TreeFolder::dropReference(folder_); }

    static FolderPointer top(MountedFolder which) {
        return FolderPointer(new Folder(nullptr, {}, which));
    }
    FolderPointer below(std::string name, MountedFolder which) const {
        return FolderPointer(new Folder(folder_, std::move(name), which));
    }
    /// None above the top.
    FolderPointer above() const {
        FolderPointer above(static_cast<Folder*>(folder_->above()));
        if (above.folder_) above.folder_->addReference();
        return above;
    }

    Folder* get() const { return folder_; }
    Folder& operator*() const { return *folder_; }
    Folder* operator->() const { return folder_; }
    explicit operator bool() const { return folder_ != nullptr; }

 private:
    explicit FolderPointer(Folder* folder) : folder_(folder) {}

    Folder* folder_ = nullptr;
};

}  // namespace tidewell::posix
