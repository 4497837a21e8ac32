#include "platform/posix/folder_measurer.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <thread>
#include <utility>

#include "platform/posix/descriptor_limit.h"
#include "platform/posix/folder_identity.h"
#include "platform/posix/reach.h"

namespace tidewell::posix {
namespace {

constexpr ByteCount bytesPerBlock = 512;

/// A measure that is over in so few steps is not worth waking anybody for.
constexpr int stepsAlone = 16;

/// How many files are measured between two looks at the pool's appetite.
constexpr std::size_t filesBetweenLooks = 64;

/// Of a folder with more sub-folders than these bytes hold, the rest is read when those are done.
constexpr std::size_t subfolderNamesAtOnce = 64 * 1024;

/// How many descriptors all threads together should hold, if the process may open so many.
constexpr std::size_t descriptorBudget = 256;

/// What a thread opens besides the folders that it holds: the one that it reads, the one that it
/// came from, and two on the way to one that was let go.
constexpr std::size_t descriptorsInUse = 4;

std::size_t foldersHeld(int threads) {
    const auto budget = std::min(descriptorBudget, descriptorLimit() / 2);
    const auto ofThread = budget / static_cast<std::size_t>(threads);
    return ofThread > descriptorsInUse ? ofThread - descriptorsInUse : 1;
}

MeasuredFolders::Identity identityOf(const MountedFolder& which) {
    return {.device = which.folder.device, .inode = which.folder.inode, .mount = which.mount};
}

std::optional<DiskUsage> knownUsage(const MeasuredFolders* known, const MountedFolder& which) {
    return known ? known->find(identityOf(which)) : std::nullopt;
}

/// Disks answer sooner the more they are asked at once, so there are threads to spare; where all is
/// in memory, they cost next to nothing. A thread needs a few descriptors.
int poolWidth() {
    constexpr unsigned leastWidth = 8;
    constexpr std::size_t descriptorsOfThread = 8;
    const std::size_t wanted = std::max(leastWidth, 2 * std::thread::hardware_concurrency());
    const auto affordable = descriptorLimit() / descriptorsOfThread;
    return static_cast<int>(std::clamp<std::size_t>(affordable, 1, wanted));
}

/// Makes a file count. Nothing more is asked of a folder whose own size nobody wants to know.
void count(const struct stat& status, const char*, const FolderPointer<TreeFolder>&,
           const Measuring& how, DiskUsage& found) {
    addFile(status, how.links, found);
}

void count(const struct stat& status, const char* name, const FolderPointer<SizedFolder>& folder,
           const Measuring&, DiskUsage& found) {
    if (!S_ISREG(status.st_mode)) return;
    auto* const shared = folder->sizing().shared;
    if (shared && status.st_nlink > 1) {
        found.bytes += shared->meet(status, folder);
    } else {
        const ByteCount size = status.st_blocks * bytesPerBlock;
        folder->add(name, size);
        found.bytes += size;
    }
}

void markUnread(TreeFolder&) {}
void markUnread(SizedFolder& folder) {
    folder.markUnread();
}

void grow(TreeFolder&, ByteCount) {}
void grow(SizedFolder& folder, ByteCount bytes) {
    folder.sizing().tree.grow(bytes);
}

}  // namespace

WorkPool& measuringPool() {
    static auto& pool = WorkPool::make(poolWidth());
    return pool;
}

void addFile(const struct stat& status, LinkTable* links, DiskUsage& usage) {
    if (!S_ISREG(status.st_mode)) return;
    const ByteCount size = status.st_blocks * bytesPerBlock;
    if (status.st_nlink < 2) {
        usage.bytes += size;
    } else if (links) {
        const auto change = links->meet(status);
        usage.bytes += change.freed;
        usage.linkedBytes += change.shared;
    } else {
        usage.bytes += size;
        usage.linkedBytes += size;
    }
}

bool isGone() {
    return errno == ENOENT || errno == ENOTDIR || errno == ELOOP;
}

/// From an open folder, which is left as it stands.
template <class Folder>
void measureFrom(Measure& measure, Descriptor own, const FolderPointer<Folder>& top) {
    const auto open = top->hold(std::move(own));
    measure.job.run(std::make_unique<FolderMeasurer<Folder>>(
        measure, FolderWork<Folder>{.folder = top, .descriptor = open, .isUnread = true}));
}

/// With a file position of its own, so that it can be measured more than once.
Descriptor openAnew(const Descriptor& folder) {
    return Descriptor(::openat(folder.get(), ".", openFolderFlags));
}

DiskUsage usageBelow(WorkPool& pool, const Descriptor& folder, const Measuring& how) {
    Measure measure{.job = Job(pool, how.helpers),
                    .foldersHeldByThread = foldersHeld(pool.width()),
                    .how = how};
    auto own = openAnew(folder);
    const auto which = own ? mountedFolder(own.get()) : std::nullopt;
    if (!which) {
        measure.found.unread.addUnknown();
        return std::move(measure.found);
    }
    if (auto usage = knownUsage(how.known, *which)) return std::move(*usage);
    measureFrom(measure, std::move(own), FolderPointer<TreeFolder>::top(*which));
    if (how.known) how.known->add(identityOf(*which), measure.found);
    return std::move(measure.found);
}

bool sizeBelow(WorkPool& pool, const Descriptor& folder, const Measuring& how,
               SizedFolder::Sizing& sizing) {
    Measure measure{.job = Job(pool, how.helpers),
                    .foldersHeldByThread = foldersHeld(pool.width()),
                    .how = how};
    auto own = openAnew(folder);
    const auto which = own ? mountedFolder(own.get()) : std::nullopt;
    const auto top = FolderPointer<SizedFolder>::top(which.value_or(MountedFolder{}));
    top->workFor(sizing);
    if (!which) {
        top->markUnread();
        return true;
    }
    measureFrom(measure, std::move(own), top);
    return !how.stop.stop_requested();
}

template <class Folder>
FolderMeasurer<Folder>::FolderMeasurer(Measure& measure, Work first)
    : FolderMeasurer(measure, WayDown<Work>(measure.foldersHeldByThread)) {
    works_.enter(std::move(first));
}

template <class Folder>
void FolderMeasurer<Folder>::work(Role role) {
    for (; !works_.isEmpty() && !measure_.how.stop.stop_requested(); ++steps_) {
        const int appetite = measure_.job.appetite();
        if (appetite > 0) share();
        if (appetite < 0 && role == Role::helper) {
            stepBack();
            break;
        }
        step();
    }
    const std::lock_guard lock(measure_.mutex);
    measure_.found.bytes += found_.bytes;
    measure_.found.linkedBytes += found_.linkedBytes;
    measure_.found.unread.add(found_.unread);
}

template <class Folder>
void FolderMeasurer<Folder>::step() {
    auto& work = works_.last();
    if (work.isDone()) {
        works_.leave();
    } else if (!works_.openLast()) {
        missedUnknown(work);
        works_.leave();
    } else if (!work.files.isEmpty()) {
        measureFilesOf(work);
    } else if (!work.subfolders.isEmpty()) {
        enterSubfolder();
    } else {
        read(work);
    }
}

/// Leaves half of the oldest folder's sub-folders to others, or all that is left of it.
template <class Folder>
void FolderMeasurer<Folder>::share() {
    if (steps_ < stepsAlone) return;
    const auto* last = &works_.last();
    auto* oldest = works_.oldestToShare(
        [&](const Work& work) { return &work != last || work.subfolders.hasSeveral(); });
    if (!oldest) return;
    if (oldest->subfolders.hasSeveral()) {
        auto part = oldest->emptyPart();
        part.subfolders = oldest->subfolders.takeHalf();
        measure_.job.offer(std::make_unique<FolderMeasurer>(measure_, std::move(part)));
    } else {
        measure_.job.offer(std::make_unique<FolderMeasurer>(measure_, works_.take(*oldest)));
    }
}

/// Leaves all to others, for whom it may have to wait: with as few descriptors as can be.
template <class Folder>
void FolderMeasurer<Folder>::stepBack() {
    measure_.job.offer(std::make_unique<FolderMeasurer>(measure_, works_.takeAll()));
}

/// What vanishes was not missed.
template <class Folder>
void FolderMeasurer<Folder>::missed(const Work& work, std::string_view name) {
    if (isGone()) return;
    const auto identity = posix::identityOf(work.descriptor->get());
    if (!identity) return missedUnknown(work);
    markUnread(*work.folder);
    found_.unread.add(identity->device ^ identity->inode, name);
}

template <class Folder>
void FolderMeasurer<Folder>::missedUnknown(const Work& work) {
    markUnread(*work.folder);
    found_.unread.addUnknown();
}

template <class Folder>
void FolderMeasurer<Folder>::measureFile(const Work& work, const char* name) {
    // A folder that may not be searched hides all of its files alike.
    constexpr auto allFiles = "";
    struct stat status;
    if (::fstatat(work.descriptor->get(), name, &status, AT_SYMLINK_NOFOLLOW) == 0) {
        count(status, name, work.folder, measure_.how, found_);
    } else {
        missed(work, errno == EACCES ? allFiles : name);
    }
}

template <class Folder>
void FolderMeasurer<Folder>::measureFilesOf(Work& work) {
    work.files.forEach([&](const char* name) { measureFile(work, name); });
    work.files = {};
    tellGrowth(work);
}

/// A folder that is done with its last sub-folder's opening is closed then, so that a long chain of
/// folders holds none open.
template <class Folder>
void FolderMeasurer<Folder>::enterSubfolder() {
    auto& parent = works_.last();
    auto subfolder = entered(parent, parent.subfolders.takeLast());
    if (parent.isDone()) works_.leave();
    if (subfolder) works_.enter(std::move(*subfolder));
}

template <class Folder>
bool FolderMeasurer<Folder>::takeOver(const MountedFolder& folder) {
    const auto usage = knownUsage(measure_.how.known, folder);
    if (!usage) return false;
    found_.bytes += usage->bytes;
    found_.linkedBytes += usage->linkedBytes;
    found_.unread.add(usage->unread);
    return true;
}

template <class Folder>
std::optional<FolderWork<Folder>> FolderMeasurer<Folder>::entered(const Work& parent,
                                                                  std::string name) {
    const int place = parent.descriptor->get();
    auto opened = posix::openSubfolder(place, name);
    const auto which = opened ? mountedFolder(opened.get()) : std::nullopt;
    if (!which) {
        missed(parent, name);
        return std::nullopt;
    }
    if (parent.folder->isLoop(*which) || takeOver(*which)) return std::nullopt;
    const auto folder = parent.folder.below(std::move(name), *which);
    return Work{.folder = folder, .descriptor = folder->hold(std::move(opened)), .isUnread = true};
}

template <class Folder>
void FolderMeasurer<Folder>::read(Work& work) {
    const bool mayHaveToBeLetGo = works_.size() > measure_.foldersHeldByThread;
    while (mayHaveToBeLetGo || work.subfolders.sizeInMemory() < subfolderNamesAtOnce) {
        const auto reading = reader_.readPortion(work.descriptor->get());
        if (reading == FolderReader::Reading::failed) missedUnknown(work);
        work.isUnread = reading == FolderReader::Reading::portion;
        if (!work.isUnread) return;
        sortPortion(work);
        measurePortion(work);
    }
}

template <class Folder>
void FolderMeasurer<Folder>::sortPortion(Work& work) {
    portion_.clear();
    reader_.forEachEntry([&](const ReadEntry& entry) {
        if (entry.type == DT_REG) {
            portion_.push_back(entry.name);
        } else if (entry.type == DT_DIR) {
            work.subfolders.add(entry.name);
        } else if (entry.type == DT_UNKNOWN) {
            addUntold(work, entry.name);
        }
    });
}

/// Some file systems do not tell in a folder what its entries are.
template <class Folder>
void FolderMeasurer<Folder>::addUntold(Work& work, const char* name) {
    struct stat status;
    if (::fstatat(work.descriptor->get(), name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return missed(work, name);
    if (S_ISDIR(status.st_mode)) work.subfolders.add(name);
    count(status, name, work.folder, measure_.how, found_);
}

template <class Folder>
void FolderMeasurer<Folder>::measurePortion(const Work& work) {
    for (std::size_t next = 0; next < portion_.size(); ++next) {
        if (next % filesBetweenLooks == filesBetweenLooks - 1 && measure_.job.appetite() > 0)
            shareRestOfPortion(work, next);
        measureFile(work, portion_[next]);
    }
    tellGrowth(work);
}

template <class Folder>
void FolderMeasurer<Folder>::tellGrowth(const Work& work) {
    grow(*work.folder, found_.bytes - told_);
    told_ = found_.bytes;
}

/// This is what lets several threads work on one large flat folder.
template <class Folder>
void FolderMeasurer<Folder>::shareRestOfPortion(const Work& work, std::size_t next) {
    if (portion_.size() - next < 2 * filesBetweenLooks) return;
    const auto kept = next + (portion_.size() - next) / 2;
    auto part = work.emptyPart();
    std::for_each(portion_.begin() + static_cast<std::ptrdiff_t>(kept), portion_.end(),
                  [&](const char* name) { part.files.add(name); });
    portion_.resize(kept);
    measure_.job.offer(std::make_unique<FolderMeasurer>(measure_, std::move(part)));
}

}  // namespace tidewell::posix
