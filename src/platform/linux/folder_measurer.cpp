#include "platform/linux/folder_measurer.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
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

}  // namespace

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

DiskUsage usageBelow(WorkPool& pool, const posix::Descriptor& folder, const Measuring& how) {
    Measure measure{.job = Job(pool, how.helpers),
                    .foldersHeldByThread = foldersHeld(pool.width()),
                    .how = how};
    // With a file position of its own, so that it can be measured more than once.
    posix::Descriptor own(::openat(folder.get(), ".", posix::openFolderFlags));
    const auto which = own ? mountedFolder(own.get()) : std::nullopt;
    if (!which) {
        measure.found.unread.addUnknown();
        return std::move(measure.found);
    }
    if (auto usage = knownUsage(how.known, *which)) return std::move(*usage);
    const auto top = FolderPointer<TreeFolder>::top(*which);
    const auto open = top->hold(std::move(own));
    measure.job.run(std::make_unique<FolderMeasurer>(
        measure, FolderWork{.folder = top, .descriptor = open, .isUnread = true}));
    if (how.known) how.known->add(identityOf(*which), measure.found);
    return std::move(measure.found);
}

FolderMeasurer::FolderMeasurer(Measure& measure, FolderWork first)
    : FolderMeasurer(measure, WayDown<FolderWork>(measure.foldersHeldByThread)) {
    works_.enter(std::move(first));
}

void FolderMeasurer::work(Role role) {
    for (; !works_.isEmpty(); ++steps_) {
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

void FolderMeasurer::step() {
    auto& work = works_.last();
    if (work.isDone()) {
        works_.leave();
    } else if (!works_.openLast()) {
        found_.unread.addUnknown();
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
void FolderMeasurer::share() {
    if (steps_ < stepsAlone) return;
    const auto* last = &works_.last();
    auto* oldest = works_.oldestToShare(
        [&](const FolderWork& work) { return &work != last || work.subfolders.hasSeveral(); });
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
void FolderMeasurer::stepBack() {
    measure_.job.offer(std::make_unique<FolderMeasurer>(measure_, works_.takeAll()));
}

/// What vanishes was not missed.
void FolderMeasurer::missed(int folder, std::string_view name) {
    if (isGone()) return;
    const auto identity = posix::identityOf(folder);
    if (!identity) return found_.unread.addUnknown();
    found_.unread.add(identity->device ^ identity->inode, name);
}

void FolderMeasurer::measureFile(int folder, const char* name) {
    // A folder that may not be searched hides all of its files alike.
    constexpr auto allFiles = "";
    struct stat status;
    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0) {
        addFile(status, measure_.how.links, found_);
    } else {
        missed(folder, errno == EACCES ? allFiles : name);
    }
}

void FolderMeasurer::measureFilesOf(FolderWork& work) {
    work.files.forEach([&](const char* name) { measureFile(work.descriptor->get(), name); });
    work.files = {};
}

/// A folder that is done with its last sub-folder's opening is closed then, so that a long chain of
/// folders holds none open.
void FolderMeasurer::enterSubfolder() {
    auto& parent = works_.last();
    auto subfolder = entered(parent, parent.subfolders.takeLast());
    if (parent.isDone()) works_.leave();
    if (subfolder) works_.enter(std::move(*subfolder));
}

bool FolderMeasurer::takeOver(const MountedFolder& folder) {
    const auto usage = knownUsage(measure_.how.known, folder);
    if (!usage) return false;
    found_.bytes += usage->bytes;
    found_.linkedBytes += usage->linkedBytes;
    found_.unread.add(usage->unread);
    return true;
}

std::optional<FolderWork> FolderMeasurer::entered(const FolderWork& parent, std::string name) {
    const int place = parent.descriptor->get();
    auto opened = posix::openSubfolder(place, name);
    const auto which = opened ? mountedFolder(opened.get()) : std::nullopt;
    if (!which) {
        missed(place, name);
        return std::nullopt;
    }
    if (parent.folder->isLoop(*which) || takeOver(*which)) return std::nullopt;
    const auto folder = parent.folder.below(std::move(name), *which);
    return FolderWork{
        .folder = folder, .descriptor = folder->hold(std::move(opened)), .isUnread = true};
}

void FolderMeasurer::read(FolderWork& work) {
    const bool mayHaveToBeLetGo = works_.size() > measure_.foldersHeldByThread;
    while (mayHaveToBeLetGo || work.subfolders.sizeInMemory() < subfolderNamesAtOnce) {
        const auto reading = reader_.readPortion(work.descriptor->get());
        if (reading == FolderReader::Reading::failed) found_.unread.addUnknown();
        work.isUnread = reading == FolderReader::Reading::portion;
        if (!work.isUnread) return;
        sortPortion(work);
        measurePortion(work);
    }
}

void FolderMeasurer::sortPortion(FolderWork& work) {
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
void FolderMeasurer::addUntold(FolderWork& work, const char* name) {
    struct stat status;
    if (::fstatat(work.descriptor->get(), name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return missed(work.descriptor->get(), name);
    if (S_ISDIR(status.st_mode)) work.subfolders.add(name);
    addFile(status, measure_.how.links, found_);
}

void FolderMeasurer::measurePortion(const FolderWork& work) {
    const int folder = work.descriptor->get();
    for (std::size_t next = 0; next < portion_.size(); ++next) {
        if (next % filesBetweenLooks == filesBetweenLooks - 1 && measure_.job.appetite() > 0)
            shareRestOfPortion(work, next);
        measureFile(folder, portion_[next]);
    }
}

/// This is what lets several threads work on one large flat folder.
void FolderMeasurer::shareRestOfPortion(const FolderWork& work, std::size_t next) {
    if (portion_.size() - next < 2 * filesBetweenLooks) return;
    const auto kept = next + (portion_.size() - next) / 2;
    auto part = work.emptyPart();
    std::for_each(portion_.begin() + static_cast<std::ptrdiff_t>(kept), portion_.end(),
                  [&](const char* name) { part.files.add(name); });
    portion_.resize(kept);
    measure_.job.offer(std::make_unique<FolderMeasurer>(measure_, std::move(part)));
}

}  // namespace tidewell::posix
