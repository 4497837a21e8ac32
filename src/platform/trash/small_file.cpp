#include "platform/trash/small_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/read_whole.h"

namespace tidewell::trash {

using posix::Descriptor;

std::optional<std::string> readSmallFile(int folder, const std::string& name, std::size_t limit) {
    const Descriptor file(
        ::openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_uid != ::geteuid())
        return std::nullopt;
    return posix::readWhole(file, limit);
}

namespace {

int writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count =
            posix::retrying([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (count < 0) return errno;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return ::fsync(file) == 0 ? 0 : errno;
}

}  // namespace

int writeNewFile(int folder, const std::string& name, std::string_view bytes) {
    constexpr int newFileFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const Descriptor file(::openat(folder, name.c_str(), newFileFlags, 0600));
    if (!file) return errno;
    const int error = writeAll(file.get(), bytes);
    if (error != 0) ::unlinkat(folder, name.c_str(), 0);
    return error;
}

}  // namespace tidewell::trash
