#pragma once

#include "selfcheck/check.h"

namespace tidewell::selfcheck {

/// Names that are taken in the Trash, and places that are taken when something is put back.
void checkCollisions(const TrialGround& ground, Findings& findings);

/// A Trash that is a link, and folders that are swapped or moved away right before an item of them
/// goes to the Trash.
void checkTrash(const TrialGround& ground, Findings& findings);

}  // namespace tidewell::selfcheck
