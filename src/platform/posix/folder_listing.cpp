#include "platform/posix/folder_listing.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <memory>
#include <string_view>

#include "platform/posix/descriptor.h"

namespace tidewell::posix {
namespace {

EntryType typeOfMode(mode_t mode) {
    if (S_ISDIR(mode)) return EntryType::folder;
    if (S_ISREG(mode)) return EntryType::regularFile;
    if (S_ISLNK(mode)) return EntryType::link;
    return EntryType::other;
}

EntryType typeOf(int folder, const dirent& entry) {
    if (entry.d_type != DT_UNKNOWN) return typeOfMode(static_cast<mode_t>(DTTOIF(entry.d_type)));
    struct stat status;
    if (::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return EntryType::other;
    return typeOfMode(status.st_mode);
}

}  // namespace

std::optional<std::vector<FolderEntry>> listFolder(int folder) {
    Descriptor own(::fcntl(folder, F_DUPFD_CLOEXEC, 0));
    if (!own) return std::nullopt;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(::fdopendir(own.get()), ::closedir);
    if (!stream) return std::nullopt;
    own.release();
    std::vector<FolderEntry> entries;
    while (const auto* entry = ::readdir(stream.get())) {
        const std::string_view name = entry->d_name;
        if (name == "." || name == "..") continue;
        entries.push_back({.name = std::string(name), .type = typeOf(folder, *entry)});
    }
    return entries;
}

}  // namespace tidewell::posix
