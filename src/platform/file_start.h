#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace tidewell {

/// At most `count` bytes of a regular file from `offset` on, and how large all of it is said to
/// be. Absent if it is missing, unreadable, a link, or anything but a file (a FIFO is not waited
/// for). Any thread.
struct FileStart {
    std::string bytes;
    std::size_t fileSize = 0;
};

std::optional<FileStart> fileStart(const std::string& path, std::size_t count,
                                   std::size_t offset = 0);

}  // namespace tidewell
