#include "platform/measured_folders.h"

namespace tidewell {

std::optional<DiskUsage> MeasuredFolders::find(const Identity& folder) const {
    const std::lock_guard lock(mutex_);
    const auto found = usages_.find(folder);
    return found == usages_.end() ? std::nullopt : std::optional(found->second);
}

void MeasuredFolders::add(const Identity& folder, const DiskUsage& usage) {
    const std::lock_guard lock(mutex_);
    usages_.insert_or_assign(folder, usage);
}

}  // namespace tidewell
