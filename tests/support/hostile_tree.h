#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <string>

namespace tidewell::test {

/// A new file of so many allocated bytes in an open folder.
inline void makeFileAt(int folder, const std::string& name, off_t allocated) {
    const int file = ::openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    ASSERT_GE(file, 0) << name;
    if (allocated > 0) {
        EXPECT_EQ(::posix_fallocate(file, 0, allocated), 0);
    }
    ::close(file);
}

/// Opens a new folder, for the caller to close.
inline int makeFolderAt(int folder, const std::string& name) {
    EXPECT_EQ(::mkdirat(folder, name.c_str(), 0755), 0) << name;
    return ::openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

/// A chain of folders, one in the other; `fill` is called with each one's descriptor. With names of
/// 200 bytes, 30 levels are more than a path can name.
inline void makeChain(const std::string& folder, int levels, const std::string& name,
                      const std::function<void(int folder)>& fill) {
    int current = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < levels; ++level) {
        const int next = makeFolderAt(current, name);
        ::close(current);
        current = next;
        fill(current);
    }
    ::close(current);
}

}  // namespace tidewell::test
