#include "platform/volume.h"

#include <sys/statvfs.h>

#include <limits>

#include "platform/posix/purgeable_room.h"

namespace tidewell {

namespace {

ByteCount bytes(unsigned long long blocks, unsigned long long blockSize) {
    constexpr auto largest = static_cast<unsigned long long>(std::numeric_limits<ByteCount>::max());
    if (blockSize != 0 && blocks > largest / blockSize)
        return std::numeric_limits<ByteCount>::max();
    return static_cast<ByteCount>(blocks * blockSize);
}

}  // namespace

std::optional<VolumeCapacity> volumeCapacity(const std::string& path) {
    struct statvfs status;
    if (::statvfs(path.c_str(), &status) != 0) return std::nullopt;
    const auto free = bytes(status.f_bavail, status.f_frsize);
    return VolumeCapacity{.available = posix::roomWithPurgeable(path).value_or(free),
                          .total = bytes(status.f_blocks, status.f_frsize)};
}

}  // namespace tidewell
