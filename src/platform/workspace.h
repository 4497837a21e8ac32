#pragma once

#include <functional>
#include <string>

#include "platform/host.h"

namespace tidewell {

/// What the user's desktop does for the program. Both return at once, show nothing of a failure,
/// and may be called on any thread.
struct Workspace {
    /// Opens a URL with whatever program is meant for it.
    std::function<void(const std::string& url)> openUrl;
    /// Shows an entry in the file manager, selected in its folder; where the file manager cannot do
    /// that, the folder alone. Does nothing for the empty path.
    std::function<void(const std::string& path)> reveal;
};

/// The desktop that the program runs on.
Workspace desktopWorkspace(const Host& host);

/// "file:///Users/ada/a%20b" for "/Users/ada/a b". The path's bytes need not be text.
std::string fileUrl(const std::string& path);

}  // namespace tidewell
