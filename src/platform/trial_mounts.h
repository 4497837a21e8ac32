#pragma once

#include <string>

namespace tidewell {

/// From then on what this process mounts is seen by it alone and gone with it. To be called before
/// any thread begins. Empty if that is so, else why not: a sentence without its end.
std::string keepMountsToOneself();

/// Shows a folder in the place of another one too. False if that is not allowed.
bool mountFolder(const std::string& folder, const std::string& place);

}  // namespace tidewell
