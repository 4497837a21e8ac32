#pragma once

#include <sys/stat.h>

#include <optional>

namespace tidewell::posix {

/// Which folder it is, whatever way led to it.
struct FolderIdentity {
    dev_t device;
    ino_t inode;

    friend bool operator==(const FolderIdentity&, const FolderIdentity&) = default;
};

inline std::optional<FolderIdentity> identityOf(int folder) {
    struct stat status;
    if (::fstat(folder, &status) != 0) return std::nullopt;
    return FolderIdentity{.device = status.st_dev, .inode = status.st_ino};
}

}  // namespace tidewell::posix
