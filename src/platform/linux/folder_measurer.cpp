#include "platform/linux/folder_measurer.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tidewell::linux_system {
namespace {

constexpr ByteCount bytesPerBlock = 512;

/// A measure that is over in so few steps is not worth waking anybody for.
constexpr int stepsAlone = 16;

/// How many files are measured between two looks at the pool's appetite.
constexpr std::size_t filesBetweenLooks = 64;

/// Of a folder with more sub-folders than these bytes hold, the rest is read when those are done.
constexpr std::size_t subfolderNamesAtOnce = 64 * 1024;

ByteCount allocatedBytes(const struct stat& status) {
    return S_ISREG(status.st_mode) ? status.st_blocks * bytesPerBlock : 0;
}

/// Where a reading stopped would be lost with the descriptor.
bool canBeLetGo(const FolderWork& work) {
    return work.descriptor && !work.isUnread;
}

}  // namespace

std::optional<ByteCount> sizeOfRegularFile(int folder, const char* name) {
    struct stat status;
    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0) return std::nullopt;
    return allocatedBytes(status);
}

bool isGone() {
    return errno == ENOENT || errno == ENOTDIR || errno == ELOOP;
}

DiskUsage FolderMeasurer::run(FolderWork first) {
    works_.push_back(std::move(first));
    for (; !works_.empty(); ++steps_) {
        const int appetite = pool_.appetite();
        if (appetite > 0) share();
        if (appetite < 0 && stepBack_ == StepBack::whenCrowded) {
            stepBack();
            break;
        }
        auto& work = works_.back();
        if (work.isDone() || !isOpen(work)) {
            works_.pop_back();
        } else if (!work.files.isEmpty()) {
            measureFilesOf(work);
        } else if (!work.subfolders.isEmpty()) {
            enterSubfolder();
        } else {
            read(work);
        }
    }
    return std::move(found_);
}

/// Leaves half of the first folder's sub-folders to others, or all that is left of it.
void FolderMeasurer::share() {
    if (steps_ < stepsAlone) return;
    auto& oldest = works_.front();
    if (oldest.subfolders.hasSeveral()) {
        auto part = oldest.emptyPart();
        part.subfolders = oldest.subfolders.takeHalf();
        pool_.offer(measure_, std::move(part));
    } else if (works_.size() > 1) {
        pool_.offer(measure_, std::move(oldest));
        works_.erase(works_.begin());
    }
}

/// Leaves all to others, for whom it may have to wait: with as few descriptors as can be.
void FolderMeasurer::stepBack() {
    for (auto& work : works_) {
        if (canBeLetGo(work)) work.descriptor = nullptr;
        pool_.offer(measure_, std::move(work));
    }
    works_.clear();
}

bool FolderMeasurer::isOpen(FolderWork& work) {
    if (work.descriptor) return true;
    auto again = work.place.open(measure_.start->get());
    if (!again) {
        found_.unread.addUnknown();
        return false;
    }
    work.descriptor = std::make_shared<const posix::Descriptor>(std::move(again));
    return true;
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
    if (const auto size = sizeOfRegularFile(folder, name)) {
        found_.bytes += *size;
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
    auto& parent = works_.back();
    auto subfolder = entered(parent, parent.subfolders.takeLast());
    if (parent.isDone()) works_.pop_back();
    if (!subfolder) return;
    works_.push_back(std::move(*subfolder));
    letGoOfFoldersAbove();
}

std::optional<FolderWork> FolderMeasurer::entered(const FolderWork& parent, std::string name) {
    const int place = parent.descriptor->get();
    posix::Descriptor folder(::openat(place, name.c_str(), posix::openFolderFlags));
    const auto identity = folder ? mountedFolder(folder.get()) : std::nullopt;
    if (!identity) {
        missed(place, name);
        return std::nullopt;
    }
    if (parent.place.isLoop(*identity)) return std::nullopt;
    return FolderWork{
        .place = parent.place.below(std::move(name), *identity),
        .descriptor = std::make_shared<const posix::Descriptor>(std::move(folder)),
        .isUnread = true,
    };
}

/// Of those that are too many, the ones that are needed last.
void FolderMeasurer::letGoOfFoldersAbove() {
    const auto mayBeHeld = static_cast<std::ptrdiff_t>(pool_.foldersHeldByThread());
    if (std::ssize(works_) <= mayBeHeld) return;
    auto tooMany = std::ranges::count_if(works_, canBeLetGo) - mayBeHeld;
    for (auto work = works_.begin(); tooMany > 0; ++work) {
        if (!canBeLetGo(*work)) continue;
        work->descriptor = nullptr;
        --tooMany;
    }
}

void FolderMeasurer::read(FolderWork& work) {
    const bool mayHaveToBeLetGo = works_.size() > pool_.foldersHeldByThread();
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
    reader_.forEachEntry([&](const char* name, unsigned char type) {
        if (type == DT_REG) {
            portion_.push_back(name);
        } else if (type == DT_DIR) {
            work.subfolders.add(name);
        } else if (type == DT_UNKNOWN) {
            addUntold(work, name);
        }
    });
}

/// Some file systems do not tell in a folder what its entries are.
void FolderMeasurer::addUntold(FolderWork& work, const char* name) {
    struct stat status;
    if (::fstatat(work.descriptor->get(), name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return missed(work.descriptor->get(), name);
    if (S_ISDIR(status.st_mode)) work.subfolders.add(name);
    found_.bytes += allocatedBytes(status);
}

void FolderMeasurer::measurePortion(const FolderWork& work) {
    const int folder = work.descriptor->get();
    for (std::size_t next = 0; next < portion_.size(); ++next) {
        if (next % filesBetweenLooks == filesBetweenLooks - 1 && pool_.appetite() > 0)
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
    pool_.offer(measure_, std::move(part));
}

}  // namespace tidewell::linux_system
