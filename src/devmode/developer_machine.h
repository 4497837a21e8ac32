#pragma once

#include "platform/host.h"

namespace tidewell {

/// Whether the machine looks like a developer's: one of the places that their tools make exists.
/// Looks at the disk; a caller that needs one answer for a whole run keeps it.
bool isDeveloperMachine(const Host& host);

}  // namespace tidewell
