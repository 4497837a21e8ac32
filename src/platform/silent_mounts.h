#pragma once

#include <string>
#include <vector>

namespace tidewell {

// A mount that another machine or a program stands behind can fall silent. Whoever asks anything of
// it then waits, without end, and cannot be ended. So all such mounts are asked on threads that
// nobody waits for. What lies on one that gave no answer in good time is passed over by every other
// question of this layer, as if it could not be read.

/// Asks anew, and gives the places of the mounts that are silent. Waits a few seconds at most, and
/// not at all for those that have not answered since they were asked last. Any thread but the main
/// one.
std::vector<std::string> findSilentMounts();

/// What was found when they were asked last. Any thread.
std::vector<std::string> knownSilentMounts();

}  // namespace tidewell
