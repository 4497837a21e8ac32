#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "apps/installed_app.h"
#include "platform/host.h"

namespace tidewell {

/// A place among the user's things that belongs to an application and exists.
struct LeftoverPlace {
    std::string path;  ///< standardised
    std::string_view category;
    bool goesByItself = true;  ///< unless the user says otherwise; false for what only he can value
};

/// Looks for what an application keeps in the given Library folder: ten exact places under its
/// identifier and its name, then the shared folders whose entries carry its identifier within a
/// longer name. Each path comes once, under the first category that named it.
///
/// Names and identifiers are chosen by whoever made the bundle, so they are not trusted: one that
/// leads out of the folder that it is looked up in, or that would fit everything in there, names
/// nothing. Blocks; any thread. What is missing or unreadable is left out.
std::vector<LeftoverPlace> findLeftoverPlaces(const InstalledApp& app, std::string_view library);

/// The same on a Linux machine: what bears exactly one of the application's own names in the base
/// folders, its sandbox's home, what starts it with the session, and its files in the menus. First
/// what goes by itself: those files, and caches; settings, data and whatever only looks like a
/// cache wait for the user's word. Nothing that is protected. Blocks; any thread.
std::vector<LeftoverPlace> linuxLeftoverPlaces(const InstalledApp& app, const Host& host);

}  // namespace tidewell
