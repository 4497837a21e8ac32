#pragma once

#include <functional>
#include <string>
#include <vector>

#include "apps/installed_app.h"
#include "platform/host.h"

namespace tidewell {

// How the applications of a machine are found, by its system. They block; any thread. What is
// missing or unreadable is left out.

/// Given fractions between 0 and 1, on the scanning thread.
using AppProgress = std::function<void(double)>;

/// The bundles directly in the search folders, or one folder down. Reports after each, the
/// passed-over ones included; 1 at the end.
std::vector<InstalledApp> macOSApps(const Host& host, const std::vector<std::string>& searchDirs,
                                    const AppProgress& onProgress);

/// The folders where people keep bundles: the machine's, its utilities, and the user's own.
std::vector<std::string> applicationFolders(const Host& host);

/// Packages, flatpaks, snaps, AppImages and programs of the user's own, with their sizes and dates.
/// Reports as each is measured; 1 at the end, unless there are none. No tool is started.
std::vector<InstalledApp> linuxApps(const Host& host, const AppProgress& onProgress);

}  // namespace tidewell
