#include "platform/posix/far_mounts.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/mount_table.h"

namespace tidewell::posix {

namespace {

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

}  // namespace tidewell::posix
