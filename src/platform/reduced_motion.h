#pragma once

#include "platform/host.h"

namespace tidewell {

/// Whether the user wants as little motion as can be: by the desktop's setting, or by
/// TIDEWELL_REDUCE_MOTION=1. No, where the desktop does not say. Blocks; any thread but the main
/// one.
bool wantsReducedMotion(const Host& host);

}  // namespace tidewell
