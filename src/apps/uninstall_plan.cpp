#include "apps/uninstall_plan.h"

#include <algorithm>

#include "platform/sum.h"

namespace tidewell {

std::int64_t UninstallPlan::itemCount() const {
    const auto own = command ? 0 : 1;
    return own + std::ranges::count_if(leftovers, &LeftoverFile::isSelected);
}

ByteCount UninstallPlan::totalBytes() const {
    const auto ofLeftovers = sumOf(leftovers, [](const auto& left) {
        return left.isSelected ? left.sizeBytes : ByteCount{0};
    });
    return addSaturating(command ? 0 : app.sizeBytes, ofLeftovers);
}

}  // namespace tidewell
