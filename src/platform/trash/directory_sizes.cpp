#include "platform/trash/directory_sizes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/byte_count.h"
#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/folder_listing.h"
#include "platform/trash/small_file.h"
#include "platform/trash/trash_info.h"

namespace tidewell::trash {

namespace {

using posix::Descriptor;

constexpr auto fileName = "directorysizes";
constexpr std::size_t fileLimit = std::size_t{16} * 1024 * 1024;

std::optional<struct stat> statusOf(int folder, const std::string& name) {
    struct stat status;
    if (::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return std::nullopt;
    return status;
}

bool isFolder(int folder, const std::string& name) {
    const auto status = statusOf(folder, name);
    return status && S_ISDIR(status->st_mode);
}

/// All that is allocated for a folder and what lies in it, a file with several names once. What
/// lies deeper than a path can name is passed over.
ByteCount diskUsage(int parent, const std::string& name) {
    constexpr ByteCount blockSize = 512;
    std::set<std::pair<dev_t, ino_t>> counted;
    ByteCount total = 0;
    std::vector<std::string> waiting = {name};
    while (!waiting.empty()) {
        const auto path = std::move(waiting.back());
        waiting.pop_back();
        const auto status = statusOf(parent, path);
        if (!status) continue;
        const bool hasOtherNames = status->st_nlink > 1 && !S_ISDIR(status->st_mode);
        if (hasOtherNames && !counted.emplace(status->st_dev, status->st_ino).second) continue;
        total += status->st_blocks * blockSize;
        if (!S_ISDIR(status->st_mode)) continue;
        const Descriptor folder(::openat(parent, path.c_str(), posix::openFolderFlags));
        if (!folder) continue;
        for (const auto& entry :
             posix::listFolder(folder.get()).value_or(std::vector<FolderEntry>{}))
            waiting.push_back(joinPath(path, entry.name));
    }
    return total;
}

/// The name stands behind the second blank.
std::optional<std::string> nameIn(std::string_view line) {
    const auto first = line.find(' ');
    const auto second = first == line.npos ? first : line.find(' ', first + 1);
    if (second == line.npos) return std::nullopt;
    auto name = percentDecoded(line.substr(second + 1));
    return name && name->find('/') == name->npos ? name : std::nullopt;
}

/// The lines of folders that are there still, without the one that is told anew.
std::string keptLines(std::string_view text, int files, const std::string& toldAnew) {
    std::string kept;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const auto line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        const auto name = nameIn(line);
        if (name && *name != toldAnew && isFolder(files, *name)) (kept += line) += '\n';
    }
    return kept;
}

std::string lineOf(const std::string& name, int files, int info) {
    const auto noted = statusOf(info, name + std::string(trashInfoExtension));
    if (!noted || !isFolder(files, name)) return {};
    return std::to_string(diskUsage(files, name)) + " " + std::to_string(noted->st_mtime) + " " +
           percentEncoded(name) + "\n";
}

}  // namespace

void updateDirectorySizes(int trash, int files, int info, const std::string& added) {
    const auto old = readSmallFile(trash, fileName, fileLimit);
    if (!old) return;
    auto lines = keptLines(*old, files, added);
    if (!added.empty()) lines += lineOf(added, files, info);
    if (lines == *old) return;
    const auto draft = std::string(fileName) + "." + std::to_string(::getpid());
    if (writeNewFile(trash, draft, lines) != 0) return;
    if (::renameat(trash, draft.c_str(), trash, fileName) != 0) ::unlinkat(trash, draft.c_str(), 0);
}

}  // namespace tidewell::trash
