#pragma once

#include <span>
#include <string>

#include "platform/disk_usage.h"
#include "platform/system.h"

namespace tidewell {

/// What removing paths together frees, as machines of that system have it. `measured` is what
/// diskUsage says of all of them. On Linux machines that is true only where no file has several
/// names; where some have, all is measured anew, by freedByRemoving. On macOS machines each name
/// counts. Blocks; any thread.
FreedUsage freedUsage(std::span<const std::string> paths, const DiskUsage& measured, System system);

/// Of a single path.
FreedUsage freedUsage(const std::string& path, const DiskUsage& measured, System system);
FreedUsage freedUsage(const std::string& path, System system);

}  // namespace tidewell
