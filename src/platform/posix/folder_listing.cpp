#include "platform/posix/folder_listing.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/posix/folder_reader.h"

namespace tidewell::posix {
namespace {

using posix::FolderReader;
using posix::ReadEntry;

EntryType typeOfMode(mode_t mode) {
    if (S_ISDIR(mode)) return EntryType::folder;
    if (S_ISREG(mode)) return EntryType::regularFile;
    if (S_ISLNK(mode)) return EntryType::link;
    return EntryType::other;
}

EntryType typeOf(int folder, const ReadEntry& entry) {
    if (entry.type != DT_UNKNOWN) return typeOfMode(static_cast<mode_t>(DTTOIF(entry.type)));
    struct stat status;
    if (::fstatat(folder, entry.name, &status, AT_SYMLINK_NOFOLLOW) != 0) return EntryType::other;
    return typeOfMode(status.st_mode);
}

}  // namespace

std::optional<std::vector<FolderEntry>> listFolder(int folder) {
    FolderReader reader;
    std::vector<FolderEntry> entries;
    for (;;) {
        switch (reader.readPortion(folder)) {
            case FolderReader::Reading::portion:
                reader.forEachEntry([&](const ReadEntry& entry) {
                    entries.push_back({.name = entry.name, .type = typeOf(folder, entry)});
                });
                break;
            case FolderReader::Reading::end:
                return entries;
            case FolderReader::Reading::failed:
                return std::nullopt;
        }
    }
}

}  // namespace tidewell::posix
