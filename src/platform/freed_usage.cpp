#include "platform/freed_usage.h"

namespace tidewell {

FreedUsage freedUsage(std::span<const std::string> paths, const DiskUsage& measured,
                      System system) {
    if (system == System::linux && measured.linkedBytes > 0) return freedByRemoving(paths);
    return {.freedBytes = measured.bytes};
}

FreedUsage freedUsage(const std::string& path, const DiskUsage& measured, System system) {
    return freedUsage({&path, 1}, measured, system);
}

FreedUsage freedUsage(const std::string& path, System system) {
    return freedUsage(path, diskUsage(path), system);
}

}  // namespace tidewell
