#include "platform/removal.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/entry_batch.h"
#include "platform/posix/link_free.h"
#include "platform/posix/tree_folder.h"
#include "platform/posix/unlinking.h"
#include "platform/posix/way_down.h"
#include "platform/posix/whereabouts.h"
#include "platform/posix/work_pool.h"

namespace tidewell {

namespace {

using posix::Descriptor;
using posix::FolderPointer;
using posix::Helpers;
using posix::Job;
using posix::lacksDescriptors;
using posix::MountedFolder;
using posix::NumberedEntry;
using posix::OpenFolder;
using posix::Role;
using posix::TreeFolder;
using posix::WayDown;
using posix::Whereabouts;
using posix::WorkPool;

// Folders are emptied depth first; whoever ends the last work in a folder removes it. A thread
// keeps one piece of work for each folder that it is in, and gives halves of them away.

/// How many of the folders that it is in a thread holds open.
constexpr std::size_t foldersHeld = 16;
/// How many entries a thread handles between two looks at whether another is idle; what is given
/// away is at least as much, or whole folders.
constexpr std::size_t sharingInterval = 64;
/// How many entries of one folder are removed between two questions where it lies by now.
constexpr std::size_t askingInterval = 32;
/// How often a name may turn from a folder into something else and back before it is given up.
constexpr int patience = 8;

class Folder : public TreeFolder {
 public:
    using TreeFolder::TreeFolder;

    std::atomic<int> workLeft = 1;  ///< pieces of work in it, and folders in it that are not done
    std::atomic<bool> isKept = false;  ///< because something in it stayed
    bool isReadAgain = false;          ///< used by the one thread that ended the last work in it
};

/// A piece of work: entries of one folder.
struct Piece {
    using Folder = tidewell::Folder;

    FolderPointer<Folder> folder;
    OpenFolder descriptor;
    std::vector<NumberedEntry> entries = {};
    std::size_t next = 0;
    bool readsOn = false;  ///< goes on reading the folder when the entries are used up

    std::size_t left() const { return entries.size() - next; }
    /// One that is still being read would have to begin anew.
    bool canBeLetGo() const { return !readsOn; }
    void giveUp() {
        entries.clear();
        next = 0;
        readsOn = false;
    }
};

class TreeRemoval {
 public:
    /// The guard is asked for each entry directly in `top`, which itself stays.
    TreeRemoval(Descriptor top, const std::string& topPath, ChildGuard guard, Helpers helpers)
        : which_(posix::mountedFolder(top.get())),
          top_(FolderPointer<Folder>::top(which_.value_or(MountedFolder{}))),
          openTop_(top_->hold(std::move(top))),
          whereabouts_(topPath),
          guard_(std::move(guard)),
          job_(removalPool(), helpers) {}

    Removal removeEntry(std::string name) {
        return run({.folder = top_,
                    .descriptor = openTop_,
                    .entries = {{.inode = 0, .name = std::move(name), .isFolder = false}}});
    }
    Removal removeAllEntries() {
        return run({.folder = top_, .descriptor = openTop_, .readsOn = true});
    }

 private:
    friend class Worker;

    static WorkPool& removalPool();
    Removal run(Piece first);
    bool isApproved(const Folder& folder, const std::string& name);
    void keep(Folder& folder) {
        folder.isKept = true;
        isIncomplete_ = true;
    }

    std::atomic<bool> isIncomplete_ = false;
    const std::optional<MountedFolder> which_;
    const FolderPointer<Folder> top_;
    const OpenFolder openTop_;
    const Whereabouts whereabouts_;
    std::mutex guardMutex_;
    const ChildGuard guard_;
    Job job_;
};

/// What one thread does with some work and all that follows from it.
class Worker : public posix::Share {
 public:
    Worker(TreeRemoval& removal, WayDown<Piece> pieces)
        : removal_(removal), pieces_(std::move(pieces)) {}
    Worker(TreeRemoval& removal, Piece first) : Worker(removal, WayDown<Piece>(foldersHeld)) {
        pieces_.enter(std::move(first));
    }

    void work(Role) override {
        for (std::size_t steps = 1; !pieces_.isEmpty(); ++steps) {
            if (steps % sharingInterval == 0 && removal_.job_.appetite() > 0) share();
            step();
        }
    }

 private:
    void step();
    void share();
    bool isOpen();
    bool isInPlace(const Folder& folder, const OpenFolder& open);
    void readOn();
    void remove(const NumberedEntry& entry);
    bool enter(const NumberedEntry& entry);
    bool putOff(const NumberedEntry& entry);
    bool putOffFinishing(const FolderPointer<Folder>& folder);
    bool leaveForLater();
    void leave();
    OpenFolder openAbove(const Folder& folder, const OpenFolder& open);
    bool removeEmptied(const FolderPointer<Folder>& folder, const OpenFolder& open,
                       const OpenFolder& place);
    bool readAgain(const FolderPointer<Folder>& folder, const OpenFolder& open);

    TreeRemoval& removal_;
    WayDown<Piece> pieces_;
    posix::FolderReader reader_;
    std::size_t removedSinceAsked_ = 0;
    bool isInAnotherFolder_ = true;  ///< than when it was asked where the folder lies
};

WorkPool& TreeRemoval::removalPool() {
    // More than the processors, since a disk that discards at once is waited for.
    static auto& pool =
        WorkPool::make(std::clamp(2 * static_cast<int>(std::thread::hardware_concurrency()), 2, 8));
    return pool;
}

Removal TreeRemoval::run(Piece first) {
    if (!which_) return Removal::incomplete;
    job_.run(std::make_unique<Worker>(*this, std::move(first)));
    return isIncomplete_ ? Removal::incomplete : Removal::complete;
}

bool TreeRemoval::isApproved(const Folder& folder, const std::string& name) {
    if (!guard_ || &folder != top_.get()) return true;
    const std::lock_guard lock(guardMutex_);
    return guard_(name).has_value();
}

void Worker::step() {
    auto& piece = pieces_.last();
    if (piece.left() > 0) {
        const auto entry = std::move(piece.entries[piece.next++]);
        remove(entry);
    } else if (piece.readsOn) {
        readOn();
    } else {
        leave();
    }
}

void Worker::share() {
    const auto* last = &pieces_.last();
    auto* piece = pieces_.oldestToShare([&](const Piece& some) {
        return some.left() >= (&some == last ? 2 * sharingInterval : 1);
    });
    if (!piece) return;
    const auto middle =
        piece->entries.begin() + static_cast<std::ptrdiff_t>(piece->next + piece->left() / 2);
    Piece half{.folder = piece->folder, .descriptor = piece->descriptor};
    half.entries.assign(std::move_iterator(middle), std::move_iterator(piece->entries.end()));
    piece->entries.erase(middle, piece->entries.end());
    ++piece->folder->workLeft;
    removal_.job_.offer(std::make_unique<Worker>(removal_, std::move(half)));
}

bool Worker::isOpen() {
    if (pieces_.openLast()) return true;
    if (!lacksDescriptors()) return false;
    pieces_.makeRoom();
    return pieces_.openLast();
}

/// Asks every few dozen entries and after each change of folders; in deep trees, where an answer
/// costs more, as much more seldom.
bool Worker::isInPlace(const Folder& folder, const OpenFolder& open) {
    const auto interval =
        (isInAnotherFolder_ ? 0 : askingInterval) + removal_.whereabouts_.costOf(folder);
    if (removedSinceAsked_++ < interval) return true;
    removedSinceAsked_ = 0;
    isInAnotherFolder_ = false;
    errno = 0;
    if (removal_.whereabouts_.isInPlace(folder, open)) return true;
    if (!lacksDescriptors()) return false;
    pieces_.makeRoom();
    return removal_.whereabouts_.isInPlace(folder, open);
}

void Worker::readOn() {
    auto& piece = pieces_.last();
    auto batch = isOpen() ? posix::readBatch(reader_, piece.descriptor->get()) : std::nullopt;
    if (!batch) {
        removal_.keep(*piece.folder);
        piece.giveUp();
        return;
    }
    piece.readsOn = !batch->isLast;
    piece.entries = std::move(batch->entries);
    piece.next = 0;
}

/// What is gone already was removed by somebody else, which is as good.
bool isGone(int result) {
    return result == 0 || errno == ENOENT;
}

void Worker::remove(const NumberedEntry& entry) {
    const bool isOpened = isOpen();
    if (!isOpened && lacksDescriptors() && putOff(entry)) return;
    auto& piece = pieces_.last();
    const auto folder = piece.folder;
    const auto place = piece.descriptor;
    if (!isOpened || !isInPlace(*folder, place)) {
        removal_.keep(*folder);
        piece.giveUp();
        return;
    }
    if (!removal_.isApproved(*folder, entry.name)) return removal_.keep(*folder);
    const auto* name = entry.name.c_str();
    bool isFolder = entry.isFolder;
    for (int attempt = 0; attempt < patience; ++attempt, isFolder = !isFolder) {
        if (isFolder) {
            if (enter(entry)) return;
            if (errno != ELOOP && errno != ENOTDIR) break;
        } else {
            if (isGone(posix::unlinkNoFolder(place->get(), name))) return;
            if (errno != EISDIR) break;
        }
    }
    // One that may not be read can still be removed if it is empty.
    if (errno == EACCES && isFolder && isGone(::unlinkat(place->get(), name, AT_REMOVEDIR))) return;
    removal_.keep(*folder);
}

/// False, with the reason in errno, if the entry cannot be entered.
bool Worker::enter(const NumberedEntry& entry) {
    const auto folder = pieces_.last().folder;
    const auto place = pieces_.last().descriptor;
    auto opened = link_free::openSubfolder(place->get(), entry.name);
    if (!opened && lacksDescriptors()) {
        pieces_.makeRoom();
        opened = link_free::openSubfolder(place->get(), entry.name);
        if (!opened && lacksDescriptors()) return putOff(entry);
    }
    if (!opened) return errno == ENOENT;
    const auto which = posix::mountedFolder(opened.get());
    if (!which) return false;
    const auto below = folder.below(entry.name, *which);
    ++folder->workLeft;
    pieces_.enter({.folder = below, .descriptor = below->hold(std::move(opened)), .readsOn = true});
    isInAnotherFolder_ = true;
    return true;
}

/// For want of descriptors that other threads hold: what stays must not depend on how the work was
/// shared out. False if there are no others.
bool Worker::putOff(const NumberedEntry& entry) {
    auto& piece = pieces_.last();
    piece.entries[--piece.next] = entry;
    if (leaveForLater()) return true;
    ++pieces_.last().next;
    errno = EMFILE;
    return false;
}

bool Worker::putOffFinishing(const FolderPointer<Folder>& folder) {
    folder->workLeft = 1;
    pieces_.enter({.folder = folder, .descriptor = nullptr});
    if (leaveForLater()) return true;
    pieces_.leave();
    folder->workLeft = 0;
    return false;
}

bool Worker::leaveForLater() {
    auto rest = std::make_unique<Worker>(removal_, pieces_.takeAll());
    auto* const own = rest.get();
    std::unique_ptr<posix::Share> share = std::move(rest);
    if (removal_.job_.leaveForLater(share)) return true;
    pieces_ = std::move(own->pieces_);
    return false;
}

/// Ends a piece of work, and removes the folders that it was the last in.
void Worker::leave() {
    auto folder = pieces_.last().folder;
    auto open = folder->held();
    pieces_.leave();
    isInAnotherFolder_ = true;
    while (--folder->workLeft == 0 && folder->above()) {
        auto place = openAbove(*folder, open);
        if (!place && lacksDescriptors() && putOffFinishing(folder)) return;
        if (!removeEmptied(folder, open, place)) return;
        folder = folder.above();
        open = std::move(place);
        // Nothing that was removed is held any longer: the kernel would walk all of it each time.
        pieces_.comeFrom(folder, open);
    }
}

OpenFolder Worker::openAbove(const Folder& folder, const OpenFolder& open) {
    auto place = folder.above()->openFrom(folder, open);
    if (place || !lacksDescriptors()) return place;
    pieces_.makeRoom();
    return folder.above()->openFrom(folder, open);
}

/// False if there is more to do in the folder.
bool Worker::removeEmptied(const FolderPointer<Folder>& folder, const OpenFolder& open,
                           const OpenFolder& place) {
    const auto above = folder.above();
    if (folder->isKept) {
        above->isKept = true;
        return true;
    }
    if (place && isInPlace(*above, place)) {
        if (isGone(::unlinkat(place->get(), folder->name().c_str(), AT_REMOVEDIR))) return true;
        if (errno == ENOTEMPTY && readAgain(folder, open)) return false;
    }
    removal_.keep(*above);
    return true;
}

/// What came in while the folder was emptied is removed as well, once.
bool Worker::readAgain(const FolderPointer<Folder>& folder, const OpenFolder& open) {
    if (folder->isReadAgain) return false;
    const auto again = open ? open : folder->open();
    if (!again || ::lseek(again->get(), 0, SEEK_SET) != 0) return false;
    folder->isReadAgain = true;
    folder->workLeft = 1;
    pieces_.enter({.folder = folder, .descriptor = again, .readsOn = true});
    isInAnotherFolder_ = true;
    return true;
}

/// A removal that fails by itself is tried again, and then named.
template <class Attempt>
Removal attempted(const Attempt& attempt) {
    try {
        return posix::withHelpersOrWithout(attempt);
    } catch (...) {
        return Removal::incomplete;
    }
}

}  // namespace

Removal removeItem(const DeletablePath& item) {
    return attempted([&](Helpers helpers) {
        auto place = link_free::openPlaceOf(item.real());
        if (!place.folder) return errno == ENOENT ? Removal::complete : Removal::incomplete;
        TreeRemoval removal(std::move(place.folder), std::string(parentPath(item.real())), nullptr,
                            helpers);
        return removal.removeEntry(std::move(place.name));
    });
}

Removal emptyFolder(const DeletablePath& folder, const ChildGuard& guard) {
    const auto liesInside = [&](std::string_view name) {
        auto child = guard(name);
        const bool isThatChild = child && child->real() == joinPath(folder.real(), name);
        return isThatChild ? child : std::nullopt;
    };
    return attempted([&](Helpers helpers) {
        const auto place = link_free::openPlaceOf(folder.real());
        if (!place.folder) return Removal::incomplete;
        auto opened = link_free::openSubfolder(place.folder.get(), place.name);
        if (!opened) return Removal::incomplete;
        TreeRemoval removal(std::move(opened), folder.real(), liesInside, helpers);
        return removal.removeAllEntries();
    });
}

}  // namespace tidewell
