#include "platform/posix/purgeable_room.h"

namespace tidewell::posix {

std::optional<ByteCount> roomWithPurgeable(const std::string&) {
    return std::nullopt;
}

}  // namespace tidewell::posix
