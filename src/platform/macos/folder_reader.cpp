#include "platform/posix/folder_reader.h"

#include <sys/attr.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "platform/posix/descriptor.h"

namespace tidewell::posix {

namespace {

/// As the kernel numbers what an entry is.
enum ObjectType : std::uint32_t { regular = 1, directory, block, character, link, socket, fifo };

unsigned char entryType(std::uint32_t type) {
    switch (type) {
        case regular:
            return DT_REG;
        case directory:
            return DT_DIR;
        case block:
            return DT_BLK;
        case character:
            return DT_CHR;
        case link:
            return DT_LNK;
        case socket:
            return DT_SOCK;
        case fifo:
            return DT_FIFO;
        default:
            return DT_UNKNOWN;
    }
}

template <class Value>
Value takeValue(const std::byte*& at) {
    Value value;
    std::memcpy(&value, at, sizeof value);
    at += sizeof value;
    return value;
}

attrlist wantedAttributes() {
    attrlist wanted{};
    wanted.bitmapcount = ATTR_BIT_MAP_COUNT;
    wanted.commonattr =
        ATTR_CMN_RETURNED_ATTRS | ATTR_CMN_NAME | ATTR_CMN_OBJTYPE | ATTR_CMN_FILEID;
    return wanted;
}

}  // namespace

const bool FolderReader::outlivesRemoval = false;

FolderReader::Reading FolderReader::readPortion(int folder) {
    auto wanted = wantedAttributes();
    const auto count =
        retrying([&] { return ::getattrlistbulk(folder, &wanted, buffer_.get(), capacity, 0); });
    filled_ = 0;
    if (count < 0) return errno == ENOENT ? Reading::end : Reading::failed;
    for (int entry = 0; entry < count; ++entry) {
        const auto* at = buffer_.get() + filled_;
        filled_ += takeValue<std::uint32_t>(at);
    }
    return count > 0 ? Reading::portion : Reading::end;
}

/// A record is its length, which attributes follow, and those in the order of their bits. A file
/// system may leave some out.
std::size_t FolderReader::takeEntry(std::size_t at, ReadEntry& entry) const {
    const auto* record = buffer_.get() + at;
    const auto* field = record;
    const auto length = takeValue<std::uint32_t>(field);
    const auto returned = takeValue<attribute_set_t>(field);
    entry = {.name = ".", .type = DT_UNKNOWN, .inode = 0};
    if (returned.commonattr & ATTR_CMN_NAME) {
        const auto* reference = field;
        const auto name = takeValue<attrreference_t>(field);
        entry.name = reinterpret_cast<const char*>(reference + name.attr_dataoffset);
    }
    if (returned.commonattr & ATTR_CMN_OBJTYPE)
        entry.type = entryType(takeValue<std::uint32_t>(field));
    if (returned.commonattr & ATTR_CMN_FILEID) entry.inode = takeValue<std::uint64_t>(field);
    return at + length;
}

}  // namespace tidewell::posix
