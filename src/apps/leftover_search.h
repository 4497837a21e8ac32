#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "apps/installed_app.h"

namespace tidewell {

/// A place in the user's Library that belongs to an application and exists.
struct LeftoverPlace {
    std::string path;  ///< standardised
    std::string_view category;
};

/// Looks for what an application keeps in the given Library folder: ten exact places under its
/// identifier and its name, then the shared folders whose entries carry its identifier within a
/// longer name. Each path comes once, under the first category that named it.
///
/// Names and identifiers are chosen by whoever made the bundle, so they are not trusted: one that
/// leads out of the folder that it is looked up in, or that would fit everything in there, names
/// nothing. Blocks; any thread. What is missing or unreadable is left out.
std::vector<LeftoverPlace> findLeftoverPlaces(const InstalledApp& app, std::string_view library);

}  // namespace tidewell
