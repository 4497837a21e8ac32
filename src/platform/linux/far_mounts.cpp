#include "platform/linux/far_mounts.h"

#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <iterator>
#include <string_view>
#include <system_error>
#include <thread>

#include "platform/mount_table.h"

namespace tidewell::linux_system {

namespace {

/// Disks of a server that sleep take some seconds to wake.
constexpr std::chrono::seconds patience{4};

/// File systems that another machine or a program stands behind.
constexpr std::array<std::string_view, 22> farKinds = {
    "9p",    "afs",    "beegfs", "ceph",  "cifs",   "coda",     "fuse", "fuseblk",
    "gfs2",  "gpfs",   "lustre", "ncp",   "ncpfs",  "nfs",      "nfs4", "ocfs2",
    "pvfs2", "prl_fs", "smb3",   "smbfs", "vboxsf", "virtiofs",
};

bool isFar(std::string_view kind) {
    return kind.starts_with("fuse.") || std::ranges::find(farKinds, kind) != farKinds.end();
}

}  // namespace

std::vector<FarMount> farMounts() {
    std::vector<FarMount> found;
    const auto table = MountTable::read();
    for (const auto& mount : table.mounts())
        if (isFar(mount.kind)) found.push_back({.number = mount.id, .place = mount.place});
    return found;
}

std::vector<FarMount> MountQuestions::silentAmong(const std::vector<FarMount>& mounts) {
    std::unique_lock lock(mutex_);
    std::vector<FarMount> asked;
    for (const auto& mount : mounts)
        if (open_.insert(mount).second && ask(mount)) asked.push_back(mount);
    const auto isOpenOne = [this](const auto& mount) { return isOpen(mount); };
    answered_.wait_for(lock, patience, [&] { return std::ranges::none_of(asked, isOpenOne); });
    std::vector<FarMount> silent;
    std::ranges::copy_if(mounts, std::back_inserter(silent), isOpenOne);
    return silent;
}

/// Without a thread nobody can ask: such a mount is taken to be there.
bool MountQuestions::ask(const FarMount& mount) {
    try {
        std::thread([this, mount] {
            struct statfs status;
            (void)::statfs(mount.place.c_str(), &status);  // a refusal is an answer, too
            const std::lock_guard lock(mutex_);
            open_.erase(mount);
            answered_.notify_all();
        }).detach();
        return true;
    } catch (const std::system_error&) {
        open_.erase(mount);
        return false;
    }
}

}  // namespace tidewell::linux_system
