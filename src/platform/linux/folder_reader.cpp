#include "platform/posix/folder_reader.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/descriptor.h"

namespace tidewell::posix {

namespace {

/// As getdents64 lays it out.
struct Record {
    ino64_t inode;
    off64_t next;
    unsigned short length;
    unsigned char type;
    char name[1];
};

}  // namespace

const bool FolderReader::outlivesRemoval = true;

FolderReader::Reading FolderReader::readPortion(int folder) {
    const auto read =
        retrying([&] { return ::syscall(SYS_getdents64, folder, buffer_.get(), capacity); });
    filled_ = read > 0 ? static_cast<std::size_t>(read) : 0;
    if (read > 0) return Reading::portion;
    return read == 0 || errno == ENOENT ? Reading::end : Reading::failed;
}

std::size_t FolderReader::takeEntry(std::size_t at, ReadEntry& entry) const {
    const auto* record = reinterpret_cast<const Record*>(buffer_.get() + at);
    entry = {.name = record->name, .type = record->type, .inode = record->inode};
    return at + record->length;
}

}  // namespace tidewell::posix
