#pragma once

#include <string>
#include <vector>

#include "apps/installed_app.h"
#include "platform/host.h"

namespace tidewell {

// What is installed on a Linux machine, each kind by what its installer keeps on the disk; no tool
// is started. Sizes that an installer does not tell, and dates, are still missing. What is damaged,
// or has a name that its installer would not give, is left out. They block; any thread.

/// The packages that bring a desktop entry along which menus show.
std::vector<InstalledApp> packagedApps(const Host& host);

/// What flatpak has deployed, for the user and for all.
std::vector<InstalledApp> flatpakApps(const Host& host);

/// The snaps that bring a desktop entry along.
std::vector<InstalledApp> snapApps(const Host& host);

/// AppImages, and what the user's own desktop entries start in the home folder.
std::vector<InstalledApp> ownApps(const Host& host);

/// Whether a file is an AppImage by its first bytes. Any thread.
bool isAppImageFile(const std::string& path);

/// The folders in which people keep AppImages: their own for programs, and those that the desktop
/// puts downloads in.
std::vector<std::string> appImageFolders(const Host& host);

/// The folders in which programs lie that were unpacked there, each in a folder of its own.
std::vector<std::string> unpackedFolders(const Host& host);

}  // namespace tidewell
