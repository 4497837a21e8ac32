#pragma once

#include <sys/stat.h>

#include <atomic>
#include <map>
#include <mutex>
#include <string_view>
#include <utility>

#include "platform/posix/size_tree.h"
#include "platform/posix/tree_folder.h"

namespace tidewell::posix {

class SharedFiles;

/// A folder of a tree whose sizes are told. It is done when nobody knows it any longer: then the
/// folder above learns what it holds.
class SizedFolder : public TreeFolder {
 public:
    /// What all folders of a sizing work for.
    struct Sizing {
        SizeTree tree;
        SharedFiles* shared = nullptr;         ///< if a file with several names counts once
        SizeTree::Place top = SizeTree::none;  ///< the top, when it is done
    };

    SizedFolder(TreeFolder* above, std::string name, MountedFolder which);
    SizedFolder(const SizedFolder&) = delete;
    SizedFolder& operator=(const SizedFolder&) = delete;
    ~SizedFolder() override;

    /// Of the top; those below work for the same.
    void workFor(Sizing& sizing) { sizing_ = &sizing; }
    Sizing& sizing() const { return *sizing_; }

    void add(std::string_view file, ByteCount bytes);
    void addShared(ByteCount bytes) { bytes_ += bytes; }
    void addThing() { ++things_; }
    void markUnread() { isUnread_ = true; }

 private:
    void take(SizedFolder& folder);

    Sizing* sizing_;
    std::atomic<ByteCount> bytes_ = 0;
    std::atomic<std::uint64_t> things_ = 0;
    std::atomic<bool> isUnread_ = false;
    SizeTree::Place children_ = SizeTree::none;
};

/// The files with several names that a sizing has met: each counts in the innermost folder that has
/// all of its names, and nowhere if some lie elsewhere. Knows a million at most; any more count
/// nowhere. Any thread.
class SharedFiles {
 public:
    /// The bytes that are known by now to be the sizing's.
    ByteCount meet(const struct stat& status, const FolderPointer<SizedFolder>& folder);

 private:
    struct Met {
        std::uint64_t namesLeft;
        FolderPointer<SizedFolder> folder;  ///< that has the names met so far
    };

    std::mutex mutex_;
    std::map<std::pair<dev_t, ino_t>, Met> files_;
};

}  // namespace tidewell::posix
