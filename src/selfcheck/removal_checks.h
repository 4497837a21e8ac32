#pragma once

#include "selfcheck/check.h"

namespace tidewell::selfcheck {

// Links that stand, and folders that are swapped for links or moved away at the very moment at
// which an entry is removed: behind the guard's answer, and in front of the removal.

void checkLinks(const TrialGround& ground, Findings& findings);
void checkSwaps(const TrialGround& ground, Findings& findings);

}  // namespace tidewell::selfcheck
