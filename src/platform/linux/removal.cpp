#include "platform/removal.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <memory>
#include <mutex>
#include <ranges>
#include <thread>
#include <vector>

#include "platform/linux/entry_batch.h"
#include "platform/linux/link_free.h"
#include "platform/linux/shared_work.h"
#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/folder_identity.h"

namespace tidewell {

namespace {

using posix::Descriptor;

// Folders are emptied depth first; whoever ends the last work in a folder removes it. A thread
// keeps one piece of work for each folder that it is in, and gives halves of them away.

/// Above this many, a folder's descriptor is closed while what lies below it is removed.
constexpr int openFolderBudget = 64;
/// How many entries a thread handles between two looks at whether another is idle; what is given
/// away is at least as much, or whole folders.
constexpr std::size_t sharingInterval = 64;
/// How often a name may turn from a folder into something else and back before it is given up.
constexpr int patience = 8;

using OpenFolder = std::shared_ptr<const Descriptor>;

class Folder {
 public:
    Folder(std::shared_ptr<Folder> above, std::string ownName, OpenFolder descriptor)
        : parent(std::move(above)), name(std::move(ownName)), descriptor_(std::move(descriptor)) {}

    const std::shared_ptr<Folder> parent;  ///< none for the one that everything lies below
    const std::string name;
    std::atomic<int> workLeft = 1;  ///< pieces of work in it, and folders in it that are not done
    std::atomic<bool> isRead = false;
    std::atomic<bool> isKept = false;  ///< because something in it stayed
    bool isReadAgain = false;          ///< used by the one thread that ended the last work in it

    OpenFolder descriptor() const {
        const std::lock_guard lock(mutex_);
        return descriptor_;
    }
    void setDescriptor(OpenFolder descriptor) {
        const std::lock_guard lock(mutex_);
        descriptor_ = std::move(descriptor);
    }
    /// One that is still being read stays open, since it would have to begin anew.
    void closeForNow() {
        const std::lock_guard lock(mutex_);
        if (!parent || !isRead || !descriptor_) return;
        identity_ = posix::identityOf(descriptor_->get());
        descriptor_.reset();
    }
    bool isSameAs(const Descriptor& other) const {
        const std::lock_guard lock(mutex_);
        return identity_ && identity_ == posix::identityOf(other.get());
    }

 private:
    mutable std::mutex mutex_;
    OpenFolder descriptor_;
    std::optional<posix::FolderIdentity> identity_;  ///< of a folder that was closed for now
};

/// A piece of work: entries of one folder.
struct Piece {
    std::shared_ptr<Folder> folder;
    std::vector<NumberedEntry> entries;
    std::size_t next = 0;
    bool readsOn = false;  ///< goes on reading the folder when the entries are used up

    std::size_t left() const { return entries.size() - next; }
};

class TreeRemoval {
 public:
    /// The guard is asked for each entry directly in `top`, which itself stays.
    TreeRemoval(Descriptor top, ChildGuard guard)
        : top_(std::make_shared<Folder>(nullptr, "", hold(std::move(top)))),
          guard_(std::move(guard)) {}

    Removal removeEntry(std::string name) {
        return run({.folder = top_,
                    .entries = {{.inode = 0, .name = std::move(name), .isFolder = false}}});
    }
    Removal removeAllEntries() { return run({.folder = top_, .entries = {}, .readsOn = true}); }

 private:
    friend class Worker;

    Removal run(Piece first);
    OpenFolder hold(Descriptor folder);
    OpenFolder open(Folder& folder);
    OpenFolder reopen(Folder& folder);
    OpenFolder openParentOf(Folder& folder);
    void makeRoomFor(Folder& folder);
    bool isApproved(const Folder& folder, const std::string& name);
    void keep(Folder& folder) {
        folder.isKept = true;
        isIncomplete_ = true;
    }

    static int threadLimit() {
        // More than the processors, since a disk that discards at once is waited for.
        return std::clamp(2 * static_cast<int>(std::thread::hardware_concurrency()), 2, 8);
    }

    std::atomic<int> openFolders_ = 0;
    std::atomic<int> budget_ = openFolderBudget;
    std::atomic<bool> isIncomplete_ = false;
    const std::shared_ptr<Folder> top_;
    std::mutex guardMutex_;
    const ChildGuard guard_;
};

/// What one thread does with a piece of work and all that follows from it.
class Worker {
 public:
    Worker(TreeRemoval& removal, SharedWork<Piece>& work) : removal_(removal), work_(work) {}

    void run(Piece first) {
        pieces_.push_back(std::move(first));
        for (std::size_t steps = 1; !pieces_.empty(); ++steps) {
            if (steps % sharingInterval == 0 && work_.isWanted()) share();
            step();
        }
    }

 private:
    void step();
    void share();
    void readOn(const std::shared_ptr<Folder>& folder);
    void remove(const std::shared_ptr<Folder>& folder, const NumberedEntry& entry);
    bool enter(const std::shared_ptr<Folder>& folder, int place, const NumberedEntry& entry);
    bool putOff(const NumberedEntry& entry);
    bool putOffFinishing(const std::shared_ptr<Folder>& folder);
    void finish(std::shared_ptr<Folder> folder);
    bool removeEmptied(const std::shared_ptr<Folder>& folder);

    TreeRemoval& removal_;
    SharedWork<Piece>& work_;
    std::vector<Piece> pieces_;
};

Removal TreeRemoval::run(Piece first) {
    SharedWork<Piece> work(threadLimit(),
                           [&](Piece piece) { Worker(*this, work).run(std::move(piece)); });
    work.run(std::move(first));
    return isIncomplete_ ? Removal::incomplete : Removal::complete;
}

OpenFolder TreeRemoval::hold(Descriptor folder) {
    ++openFolders_;
    return OpenFolder(new Descriptor(std::move(folder)), [this](const Descriptor* held) {
        delete held;
        --openFolders_;
    });
}

bool lacksDescriptors() {
    return errno == EMFILE || errno == ENFILE;
}

/// None if the folder is not to be found where it was, or for lack of descriptors.
OpenFolder TreeRemoval::open(Folder& folder) {
    if (auto held = folder.descriptor()) return held;
    auto held = reopen(folder);
    if (held || !lacksDescriptors()) return held;
    makeRoomFor(folder);
    return reopen(folder);
}

/// Finds the way from the nearest folder above that is open.
OpenFolder TreeRemoval::reopen(Folder& folder) {
    std::vector<Folder*> closed;
    auto* at = &folder;
    auto held = at->descriptor();
    for (; !held; held = at->descriptor()) {
        closed.push_back(at);
        at = at->parent.get();
    }
    for (const auto* next : closed | std::views::reverse) {
        auto opened = link_free::openSubfolder(held->get(), next->name);
        if (!opened || !next->isSameAs(opened)) return nullptr;
        held = hold(std::move(opened));
    }
    folder.setDescriptor(held);
    return held;
}

/// Closes what can be found again, and has less open from now on.
void TreeRemoval::makeRoomFor(Folder& folder) {
    budget_ = std::max(2, openFolders_ / 2);
    for (auto* above = folder.parent.get(); above; above = above->parent.get())
        above->closeForNow();
}

/// Going up by ".." keeps a deep tree from being walked from the top for each of its levels. It is
/// only believed if it leads to the very folder that was left: this one may have been moved.
OpenFolder TreeRemoval::openParentOf(Folder& folder) {
    auto& parent = *folder.parent;
    if (auto held = parent.descriptor()) return held;
    if (const auto own = folder.descriptor()) {
        Descriptor above(::openat(own->get(), "..", posix::openFolderFlags));
        if (above && parent.isSameAs(above)) {
            auto held = hold(std::move(above));
            parent.setDescriptor(held);
            return held;
        }
    }
    folder.closeForNow();
    return open(parent);
}

bool TreeRemoval::isApproved(const Folder& folder, const std::string& name) {
    if (!guard_ || &folder != top_.get()) return true;
    const std::lock_guard lock(guardMutex_);
    return guard_(name).has_value();
}

void Worker::step() {
    auto& piece = pieces_.back();
    const auto folder = piece.folder;
    if (piece.left() > 0) {
        const auto entry = std::move(piece.entries[piece.next++]);
        remove(folder, entry);
    } else if (piece.readsOn) {
        readOn(folder);
    } else {
        pieces_.pop_back();
        finish(folder);
    }
}

/// Gives away half of the oldest work, since it is the largest. In folders that are closed for now
/// it waits until the way back leads there: another thread would have to walk down from the top.
void Worker::share() {
    for (auto& piece : pieces_) {
        const auto least = &piece == &pieces_.back() ? 2 * sharingInterval : 1;
        if (piece.left() < least || !piece.folder->descriptor()) continue;
        const auto middle =
            piece.entries.begin() + static_cast<std::ptrdiff_t>(piece.next + piece.left() / 2);
        Piece half{.folder = piece.folder, .entries = {}};
        half.entries.assign(std::move_iterator(middle), std::move_iterator(piece.entries.end()));
        piece.entries.erase(middle, piece.entries.end());
        ++piece.folder->workLeft;
        work_.give(std::move(half));
        return;
    }
}

void Worker::readOn(const std::shared_ptr<Folder>& folder) {
    auto& piece = pieces_.back();
    const auto place = removal_.open(*folder);
    auto batch = place ? readBatch(place->get()) : std::nullopt;
    if (!batch) {
        removal_.keep(*folder);
        piece.readsOn = false;
        return;
    }
    folder->isRead = batch->isLast;
    piece.readsOn = !batch->isLast;
    piece.entries = std::move(batch->entries);
    piece.next = 0;
}

/// What is gone already was removed by somebody else, which is as good.
bool isGone(int result) {
    return result == 0 || errno == ENOENT;
}

void Worker::remove(const std::shared_ptr<Folder>& folder, const NumberedEntry& entry) {
    const auto place = removal_.open(*folder);
    if (!place && lacksDescriptors() && putOff(entry)) return;
    if (!place || !removal_.isApproved(*folder, entry.name)) return removal_.keep(*folder);
    const auto* name = entry.name.c_str();
    bool isFolder = entry.isFolder;
    for (int attempt = 0; attempt < patience; ++attempt, isFolder = !isFolder) {
        if (isFolder) {
            if (enter(folder, place->get(), entry)) return;
            if (errno != ELOOP && errno != ENOTDIR) break;
        } else {
            if (isGone(::unlinkat(place->get(), name, 0))) return;
            if (errno != EISDIR) break;
        }
    }
    // One that may not be read can still be removed if it is empty.
    if (errno == EACCES && isFolder && isGone(::unlinkat(place->get(), name, AT_REMOVEDIR))) return;
    removal_.keep(*folder);
}

/// False, with the reason in errno, if the entry cannot be entered.
bool Worker::enter(const std::shared_ptr<Folder>& folder, int place, const NumberedEntry& entry) {
    auto opened = link_free::openSubfolder(place, entry.name);
    if (!opened && lacksDescriptors()) {
        removal_.makeRoomFor(*folder);
        opened = link_free::openSubfolder(place, entry.name);
        if (!opened && lacksDescriptors()) return putOff(entry);
    }
    if (!opened) return errno == ENOENT;
    ++folder->workLeft;
    pieces_.push_back(
        {.folder = std::make_shared<Folder>(folder, entry.name, removal_.hold(std::move(opened))),
         .entries = {},
         .readsOn = true});
    if (removal_.openFolders_ > removal_.budget_) folder->closeForNow();
    return true;
}

/// For want of descriptors that other threads hold: what stays must not depend on how the work was
/// shared out. False if there are no others.
bool Worker::putOff(const NumberedEntry& entry) {
    auto& piece = pieces_.back();
    piece.entries[--piece.next] = entry;
    if (work_.leaveForLater(pieces_)) return true;
    ++piece.next;
    errno = EMFILE;
    return false;
}

bool Worker::putOffFinishing(const std::shared_ptr<Folder>& folder) {
    folder->workLeft = 1;
    pieces_.push_back({.folder = folder, .entries = {}});
    if (work_.leaveForLater(pieces_)) return true;
    pieces_.pop_back();
    folder->workLeft = 0;
    return false;
}

void Worker::finish(std::shared_ptr<Folder> folder) {
    while (--folder->workLeft == 0 && folder->parent && removeEmptied(folder))
        folder = folder->parent;
}

/// False if there is more to do in the folder: what came in while it was emptied is removed as
/// well, once.
bool Worker::removeEmptied(const std::shared_ptr<Folder>& folder) {
    const auto place = removal_.openParentOf(*folder);
    if (!place && lacksDescriptors() && putOffFinishing(folder)) return false;
    if (folder->isKept) {
        folder->parent->isKept = true;
        return true;
    }
    if (place && isGone(::unlinkat(place->get(), folder->name.c_str(), AT_REMOVEDIR))) return true;
    const auto own =
        place && errno == ENOTEMPTY && !folder->isReadAgain ? removal_.open(*folder) : nullptr;
    if (!own || ::lseek(own->get(), 0, SEEK_SET) != 0) {
        removal_.keep(*folder->parent);
        return true;
    }
    folder->isReadAgain = true;
    folder->isRead = false;
    folder->workLeft = 1;
    pieces_.push_back({.folder = folder, .entries = {}, .readsOn = true});
    return false;
}

}  // namespace

Removal removeItem(const DeletablePath& item) {
    auto place = link_free::openPlaceOf(item.real());
    if (!place.folder) return errno == ENOENT ? Removal::complete : Removal::incomplete;
    return TreeRemoval(std::move(place.folder), nullptr).removeEntry(std::move(place.name));
}

Removal emptyFolder(const DeletablePath& folder, const ChildGuard& guard) {
    const auto place = link_free::openPlaceOf(folder.real());
    if (!place.folder) return Removal::incomplete;
    auto opened = link_free::openSubfolder(place.folder.get(), place.name);
    if (!opened) return Removal::incomplete;
    const auto liesInside = [&](std::string_view name) {
        auto child = guard(name);
        const bool isThatChild = child && child->real() == joinPath(folder.real(), name);
        return isThatChild ? child : std::nullopt;
    };
    return TreeRemoval(std::move(opened), liesInside).removeAllEntries();
}

}  // namespace tidewell
