#include "platform/linux/folder_reader.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/descriptor.h"

namespace tidewell::linux_system {

FolderReader::Reading FolderReader::readPortion(int folder) {
    const auto read =
        posix::retrying([&] { return ::syscall(SYS_getdents64, folder, buffer_.get(), capacity); });
    filled_ = read > 0 ? static_cast<std::size_t>(read) : 0;
    if (read > 0) return Reading::portion;
    return read == 0 || errno == ENOENT ? Reading::end : Reading::failed;
}

}  // namespace tidewell::linux_system
