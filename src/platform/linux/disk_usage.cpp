#include "platform/disk_usage.h"

#include <sys/stat.h>

#include "platform/posix/descriptor.h"
#include "platform/posix/folder_listing.h"

namespace tidewell {
namespace {

constexpr ByteCount bytesPerBlock = 512;

ByteCount sizeOfEntry(int folder, const char* name) {
    struct stat status;
    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0) return 0;
    return S_ISREG(status.st_mode) ? status.st_blocks * bytesPerBlock : 0;
}

ByteCount sizeOfFolder(const posix::Descriptor& folder) {
    if (!folder) return 0;
    ByteCount total = 0;
    const auto entries = posix::listFolder(folder.get());
    if (!entries) return 0;
    for (const auto& [name, type] : *entries) {
        if (type == EntryType::regularFile) total += sizeOfEntry(folder.get(), name.c_str());
        if (type != EntryType::folder) continue;
        total += sizeOfFolder(
            posix::Descriptor(::openat(folder.get(), name.c_str(), posix::openFolderFlags)));
    }
    return total;
}

}  // namespace

ByteCount allocatedSize(const std::string& path) {
    const posix::Descriptor folder(::open(path.c_str(), posix::openFolderFlags));
    return folder ? sizeOfFolder(folder) : sizeOfEntry(AT_FDCWD, path.c_str());
}

}  // namespace tidewell
