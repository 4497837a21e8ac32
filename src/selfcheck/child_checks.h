#pragma once

#include "selfcheck/check.h"

namespace tidewell::selfcheck {

/// A child of the program is killed in the middle of a removal, between the steps of a move to the
/// Trash, and among many moves there and back.
void checkKills(const TrialGround& ground, Findings& findings);

/// A child mounts a folder in a cache, for itself alone, and empties that.
void checkMounts(const TrialGround& ground, Findings& findings);

}  // namespace tidewell::selfcheck
