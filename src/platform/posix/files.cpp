#include "platform/files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>

#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/reach.h"
#include "platform/posix/read_whole.h"

namespace tidewell {

namespace {

using posix::LastLink;

/// To be read, its link followed; a FIFO is not waited for.
posix::Descriptor openFile(const std::string& path) {
    if (posix::isOutOfReach(path, LastLink::follow)) return posix::Descriptor();
    return posix::Descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
}

}  // namespace

FileKind fileKind(const std::string& path) {
    if (posix::isOutOfReach(path, LastLink::follow)) return FileKind::untold;
    struct stat status;
    if (::stat(path.c_str(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? FileKind::missing : FileKind::untold;
    return S_ISDIR(status.st_mode) ? FileKind::folder : FileKind::other;
}

bool fileExists(const std::string& path) {
    const auto kind = fileKind(path);
    return kind == FileKind::folder || kind == FileKind::other;
}

std::optional<std::vector<std::string>> folderNames(const std::string& path) {
    auto folder = posix::openFolder(path);
    if (!folder) return std::nullopt;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(::fdopendir(folder.get()), ::closedir);
    if (!stream) return std::nullopt;
    folder.release();
    std::vector<std::string> names;
    for (errno = 0; const auto* entry = ::readdir(stream.get()); errno = 0) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
    }
    if (errno != 0) return std::nullopt;
    std::ranges::sort(names);
    return names;
}

std::optional<Date> modificationDate(const std::string& path) {
    if (posix::isOutOfReach(path, LastLink::keep)) return std::nullopt;
    struct stat status;
    if (::lstat(path.c_str(), &status) != 0) return std::nullopt;
    return Date(std::chrono::seconds(status.st_mtime));
}

std::optional<std::string> readFile(const std::string& path, std::size_t limit) {
    const auto file = openFile(path);
    struct stat status;
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    if (status.st_size > 0 && static_cast<std::size_t>(status.st_size) > limit) return std::nullopt;
    return posix::readWhole(file, limit);
}

bool isProgram(const std::string& path) {
    return fileKind(path) == FileKind::other && ::access(path.c_str(), X_OK) == 0;
}

bool canOpenForReading(const std::string& path) {
    return static_cast<bool>(openFile(path));
}

std::optional<std::string> resolvedPath(const std::string& path) {
    if (posix::isOutOfReach(path, LastLink::follow)) return std::nullopt;
    const std::unique_ptr<char, void (*)(void*)> resolved(::realpath(path.c_str(), nullptr),
                                                          std::free);
    if (!resolved) return std::nullopt;
    return resolved.get();
}

std::optional<std::string> realLocation(const std::string& path) {
    const auto standardized = standardizedPath(path);
    if (posix::isOutOfReach(standardized, LastLink::keep)) return std::nullopt;
    const auto name = lastPathComponent(standardized);
    if (name.empty() || name == "." || name == "..") return std::nullopt;
    const auto parent = std::string(parentPath(standardized));
    const auto resolved = resolvedPath(parent.empty() ? "." : parent);
    if (!resolved) return std::nullopt;
    return joinPath(*resolved, name);
}

std::string absolutePath(const std::string& path) {
    if (path.starts_with('/')) return path;
    const std::unique_ptr<char, void (*)(void*)> current(::getcwd(nullptr, 0), std::free);
    return current ? joinPath(current.get(), path) : path;
}

}  // namespace tidewell
