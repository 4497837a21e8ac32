#include "platform/trash/trash_entry.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "platform/posix/folder_listing.h"

namespace tidewell::trash {

std::optional<TrashedItem> trashEntry(int folder, const std::string& name) {
    struct stat status;
    if (::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return std::nullopt;
    TrashedItem item;
    item.name = name;
    item.deletedAt = Date(std::chrono::seconds(status.st_ctime));
    item.isFolder = S_ISDIR(status.st_mode);
    item.identity = {.device = static_cast<std::uint64_t>(status.st_dev), .inode = status.st_ino};
    return item;
}

std::vector<std::string> sortedNames(int folder) {
    std::vector<std::string> names;
    ::lseek(folder, 0, SEEK_SET);
    for (auto& entry : posix::listFolder(folder).value_or(std::vector<FolderEntry>{}))
        names.push_back(std::move(entry.name));
    std::ranges::sort(names);
    return names;
}

std::size_t longestNameIn(int folder) {
    constexpr long usual = 255;
    const auto longest = ::fpathconf(folder, _PC_NAME_MAX);
    return static_cast<std::size_t>(longest > 0 ? std::min(longest, usual) : usual);
}

}  // namespace tidewell::trash
