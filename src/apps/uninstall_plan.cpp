#include "apps/uninstall_plan.h"

#include "platform/sum.h"

namespace tidewell {

ByteCount UninstallPlan::totalBytes() const {
    const auto ofLeftovers = sumOf(leftovers, [](const auto& left) { return left.sizeBytes; });
    return addSaturating(app.sizeBytes, ofLeftovers);
}

}  // namespace tidewell
