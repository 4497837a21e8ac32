#pragma once

#include "selfcheck/check.h"

namespace tidewell::selfcheck {

// What a removal may meet, or what somebody else may do to it at the very moment at which an entry
// goes: behind the guard's answer, and in front of the removal.

void checkLinks(const TrialGround& ground, Findings& findings);
void checkKept(const TrialGround& ground, Findings& findings);
void checkSwaps(const TrialGround& ground, Findings& findings);
void checkMovesOut(const TrialGround& ground, Findings& findings);
void checkPermissions(const TrialGround& ground, Findings& findings);

/// Opens what the last one closed, where it was interrupted.
void openClosedFolders(const TrialGround& ground);

}  // namespace tidewell::selfcheck
