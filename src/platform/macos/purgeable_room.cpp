#include "platform/posix/purgeable_room.h"

#include "platform/macos/frameworks.h"

namespace tidewell::posix {

std::optional<ByteCount> roomWithPurgeable(const std::string& path) {
    return macos_system::roomForImportantUsage(path);
}

}  // namespace tidewell::posix
