#pragma once

#include <string_view>

#include "apps/uninstall_plan.h"
#include "platform/host.h"

namespace tidewell {

/// The command by which the user takes away an application that this program does not. Any thread.
std::string removalCommandText(const InstalledApp& app);

/// That command; for a package also what the system's own rehearsal says would go with it. Blocks
/// for ten seconds at most; any thread but the main one.
ShownCommand removalCommand(const InstalledApp& app, const Host& host);

/// The packages that a rehearsal of apt-get would take away, in its order. Lines and names that are
/// none are passed over.
std::vector<std::string> rehearsedRemovals(std::string_view output);

/// Those of some packages without which no desktop starts, or nobody could mend that.
std::vector<std::string> neededByDesktop(const std::vector<std::string>& packages);

}  // namespace tidewell
