#include "platform/linux/folder_chain.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <algorithm>

namespace tidewell::linux_system {

std::optional<MountedFolder> mountedFolder(int descriptor) {
    struct statx status;
    if (::statx(descriptor, "", AT_EMPTY_PATH, STATX_INO | STATX_MNT_ID, &status) != 0)
        return std::nullopt;
    return MountedFolder{
        .folder = {.device = ::makedev(status.stx_dev_major, status.stx_dev_minor),
                   .inode = status.stx_ino},
        .mount = status.stx_mnt_id,
    };
}

FolderChain::FolderChain(MountedFolder start)
    : last_(new Link{.above = nullptr, .name = {}, .folder = start}) {}

FolderChain::FolderChain(const FolderChain& other) : last_(other.last_) {
    if (last_) last_->references.fetch_add(1, std::memory_order_relaxed);
}

// A loop and no recursion: a chain may be longer than a stack is deep.
FolderChain::~FolderChain() {
    while (last_ && last_->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        auto* const above = last_->above;
        delete last_;
        last_ = above;
    }
}

FolderChain FolderChain::below(std::string name, MountedFolder folder) const {
    last_->references.fetch_add(1, std::memory_order_relaxed);
    return FolderChain(new Link{.above = last_, .name = std::move(name), .folder = folder});
}

bool FolderChain::isLoop(const MountedFolder& folder) const {
    // Without a step to another mount there is no circle, so the search is rarely made. Where the
    // system does not tell mounts apart, it gives 0 for all of them.
    if (folder.mount != 0 && folder.mount == last_->folder.mount) return false;
    for (const auto* link = last_; link; link = link->above)
        if (link->folder.folder == folder.folder) return true;
    return false;
}

posix::Descriptor FolderChain::open(int start) const {
    posix::Descriptor folder(::fcntl(start, F_DUPFD_CLOEXEC, 0));
    for (const auto* link : linksBelowStart()) {
        if (!folder) return folder;
        folder =
            posix::Descriptor(::openat(folder.get(), link->name.c_str(), posix::openFolderFlags));
    }
    if (folder && mountedFolder(folder.get()) != last_->folder) return {};
    return folder;
}

std::vector<const FolderChain::Link*> FolderChain::linksBelowStart() const {
    std::vector<const Link*> links;
    for (const auto* link = last_; link->above; link = link->above) links.push_back(link);
    std::ranges::reverse(links);
    return links;
}

}  // namespace tidewell::linux_system
