#include "platform/linux/folder_reader.h"

#include <sys/syscall.h>
#include <unistd.h>

#include "platform/posix/descriptor.h"

namespace tidewell::linux_system {

bool FolderReader::readPortion(int folder) {
    const auto read =
        posix::retrying([&] { return ::syscall(SYS_getdents64, folder, buffer_.get(), capacity); });
    filled_ = read > 0 ? static_cast<std::size_t>(read) : 0;
    return filled_ > 0;
}

}  // namespace tidewell::linux_system
