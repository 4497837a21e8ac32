#include "apps/uninstall_plan.h"

namespace tidewell {

ByteCount UninstallPlan::totalBytes() const {
    ByteCount sum = app.sizeBytes;
    for (const auto& leftover : leftovers) sum = addSaturating(sum, leftover.sizeBytes);
    return sum;
}

}  // namespace tidewell
