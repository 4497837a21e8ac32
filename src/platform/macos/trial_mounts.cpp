#include "platform/trial_mounts.h"

namespace tidewell {

/// A process has no mounts of its own here, and no folder can be shown in two places.
std::string keepMountsToOneself() {
    return "this system shows no folder in two places";
}

bool mountFolder(const std::string&, const std::string&) {
    return false;
}

}  // namespace tidewell
