#include "snapshot.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "platform/path_text.h"

namespace tidewell::test {

namespace fs = std::filesystem;

namespace {

constexpr off_t wholeUpTo = 1 << 20;
constexpr off_t endsRead = 16 << 10;

/// FNV-1a of `length` bytes from `offset`, going on from an earlier part's digest.
std::uint64_t digest(int file, off_t offset, off_t length, std::uint64_t earlier) {
    std::vector<unsigned char> bytes(static_cast<std::size_t>(length));
    const auto count = ::pread(file, bytes.data(), bytes.size(), offset);
    for (ssize_t i = 0; i < count; ++i)
        earlier = (earlier ^ bytes[static_cast<std::size_t>(i)]) * 1099511628211U;
    return earlier;
}

std::string contentDigest(const std::string& path, off_t size) {
    const int file = ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (file < 0) return "unreadable";
    constexpr std::uint64_t basis = 14695981039346656037U;
    const bool isWhole = size <= wholeUpTo;
    auto value = digest(file, 0, isWhole ? size : endsRead, basis);
    if (!isWhole) value = digest(file, size - endsRead, endsRead, value);
    ::close(file);
    return std::to_string(value);
}

Entry entryAt(const std::string& path) {
    struct stat status;
    if (::lstat(path.c_str(), &status) != 0) return {};
    Entry entry;
    entry.mode = status.st_mode;
    entry.owner = status.st_uid;
    entry.group = status.st_gid;
    entry.changed = status.st_mtim.tv_sec * 1'000'000'000LL + status.st_mtim.tv_nsec;
    entry.file = {status.st_dev, status.st_ino};
    entry.names = status.st_nlink;
    if (S_ISREG(status.st_mode)) {
        entry.size = status.st_size;
        entry.allocated = status.st_blocks * 512LL;
        entry.content = contentDigest(path, status.st_size);
    } else if (S_ISLNK(status.st_mode)) {
        entry.content = fs::read_symlink(path).string();
    }
    return entry;
}

void add(const std::string& folder, Snapshot& snapshot) {
    std::error_code unreadable;
    for (const auto& child : fs::directory_iterator(folder, unreadable)) {
        const auto path = child.path().string();
        const auto& entry = snapshot.emplace(path, entryAt(path)).first->second;
        if (entry.isFolder()) add(path, snapshot);
    }
}

}  // namespace

bool Entry::isFolder() const {
    return S_ISDIR(mode);
}

Snapshot takeSnapshot(const std::string& folder) {
    Snapshot snapshot = {{folder, entryAt(folder)}};
    add(folder, snapshot);
    return snapshot;
}

Snapshot below(const Snapshot& snapshot, const std::string& path) {
    Snapshot part;
    for (auto entry = snapshot.lower_bound(path); entry != snapshot.end(); ++entry) {
        if (isAtOrBelow(entry->first, path))
            part.insert(*entry);
        else if (!entry->first.starts_with(path))
            break;
    }
    return part;
}

}  // namespace tidewell::test
