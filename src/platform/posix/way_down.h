#pragma once

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

#include "platform/posix/tree_folder.h"

namespace tidewell::posix {

/// Whether the last thing failed because no more files may be open.
inline bool lacksDescriptors() {
    return errno == EMFILE || errno == ENFILE;
}

/// The folders that one thread is in, each below the one before, and what it has left to do in
/// each. Only those at the end are held open, so that no depth exhausts the descriptors; the others
/// are opened again when the way back leads there.
///
/// A `Stay` has a `folder` (FolderPointer), a `descriptor` (OpenFolder, none while it is let go)
/// and `canBeLetGo()`, which says no where something would be lost with the descriptor.
template <class Stay>
class WayDown {
 public:
    explicit WayDown(std::size_t held) : mayBeHeld_(held) {}

    bool isEmpty() const { return stays_.empty(); }
    std::size_t size() const { return stays_.size(); }
    Stay& last() { return stays_.back(); }
    Stay& first() { return stays_.front(); }
    auto begin() const { return stays_.begin(); }
    auto end() const { return stays_.end(); }

    void enter(Stay stay) {
        stays_.push_back(std::move(stay));
        left_ = {};
        while (stays_.size() - heldFrom_ > mayBeHeld_) letGo(stays_[heldFrom_++]);
    }

    /// The folder that was left stays open until another is entered or left: the way up is found
    /// from it.
    void leave() {
        auto& stay = stays_.back();
        if (stay.descriptor) comeFrom(stay.folder, std::move(stay.descriptor));
        stays_.pop_back();
        heldFrom_ = std::min(heldFrom_, stays_.size());
    }

    /// For who has gone further up than the last stay left.
    template <class Folder>
    void comeFrom(FolderPointer<Folder> folder, OpenFolder open) {
        left_ = {.folder = std::move(folder), .open = std::move(open)};
    }

    /// Whether the last folder is open, or was found again.
    bool openLast() {
        auto& stay = last();
        if (stay.descriptor) return true;
        stay.descriptor =
            left_.folder ? stay.folder->openFrom(*left_.folder, left_.open) : stay.folder->open();
        heldFrom_ = std::min(heldFrom_, stays_.size() - 1);
        return stay.descriptor != nullptr;
    }

    /// Lets go of all that can be found again but the last, and holds fewer from now on.
    void makeRoom() {
        mayBeHeld_ = std::max<std::size_t>(1, mayBeHeld_ / 2);
        left_ = {};
        if (stays_.empty()) return;
        heldFrom_ = stays_.size() - 1;
        std::for_each_n(stays_.begin(), heldFrom_, letGo);
    }

    /// The oldest stay, which is likely to be the largest, among those that another thread could go
    /// on with at once: for any other it would have to walk down from the top. None if there is
    /// none that `isWorthIt`.
    template <class Condition>
    Stay* oldestToShare(const Condition& isWorthIt) {
        if (isShareable(stays_.front(), isWorthIt)) return &stays_.front();
        for (auto at = heldFrom_; at < stays_.size(); ++at)
            if (isShareable(stays_[at], isWorthIt)) return &stays_[at];
        return nullptr;
    }

    /// All of one stay, for another thread.
    Stay take(Stay& stay) {
        const auto at = static_cast<std::size_t>(&stay - stays_.data());
        auto taken = std::move(stay);
        stays_.erase(stays_.begin() + static_cast<std::ptrdiff_t>(at));
        if (at < heldFrom_) --heldFrom_;
        return taken;
    }

    /// Everything, for another thread, with as few descriptors as can be.
    WayDown takeAll() {
        for (auto& stay : stays_) letGo(stay);
        WayDown all(mayBeHeld_);
        std::swap(all.stays_, stays_);
        all.heldFrom_ = all.stays_.size();
        heldFrom_ = 0;
        left_ = {};
        return all;
    }

 private:
    struct Left {
        FolderPointer<typename Stay::Folder> folder;
        OpenFolder open;
    };

    static void letGo(Stay& stay) {
        if (stay.canBeLetGo()) stay.descriptor = nullptr;
    }
    template <class Condition>
    static bool isShareable(const Stay& stay, const Condition& isWorthIt) {
        return stay.descriptor && isWorthIt(stay);
    }

    std::size_t mayBeHeld_;
    std::vector<Stay> stays_;
    std::size_t heldFrom_ = 0;  ///< those before it were let go, as far as they can be
    Left left_;
};

}  // namespace tidewell::posix
