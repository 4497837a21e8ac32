#include "platform/file_start.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/descriptor.h"

namespace tidewell {

std::optional<FileStart> fileStart(const std::string& path, std::size_t count, std::size_t offset) {
    const posix::Descriptor file(
        ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    FileStart start{.bytes = std::string(count, '\0'),
                    .fileSize = static_cast<std::size_t>(status.st_size)};
    std::size_t have = 0;
    while (have < count) {
        const auto read = posix::retrying([&] {
            return ::pread(file.get(), start.bytes.data() + have, count - have,
                           static_cast<off_t>(offset + have));
        });
        if (read < 0) return std::nullopt;
        if (read == 0) break;
        have += static_cast<std::size_t>(read);
    }
    start.bytes.resize(have);
    return start;
}

}  // namespace tidewell
