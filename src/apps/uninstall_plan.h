#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "apps/installed_app.h"
#include "platform/trash.h"

namespace tidewell {

/// The category of a leftover that the system may have started: it is unloaded before it is moved.
inline constexpr std::string_view launchAgentCategory = "Launch Agent";

/// A file or folder that belongs to an application and lies outside its bundle.
struct LeftoverFile {
    std::string id;   ///< random: two searches give the same file different ids
    std::string url;  ///< its path, standardised
    std::string category;
    ByteCount sizeBytes = 0;
    bool isSelected = true;  ///< whether it goes
};

/// A command that only the user may give, and what it would do beside what he wants.
struct ShownCommand {
    std::string text;
    std::vector<std::string> takesAlong = {};  ///< other packages that would go
    std::vector<std::string> neededByDesktop =
        {};  ///< those of them without which no session works
};

/// What goes together, as far as it is the program's to take away.
struct UninstallPlan {
    InstalledApp app;
    std::vector<LeftoverFile> leftovers;  ///< what goes by itself first, then largest first
    std::optional<ShownCommand> command = std::nullopt;  ///< then the application itself stays

    /// How many things would go, and how many bytes.
    std::int64_t itemCount() const;
    ByteCount totalBytes() const;
};

/// What an uninstall did. All sizes are those of the plan.
struct UninstallResult {
    std::string appName;
    std::int64_t movedCount = 0;
    ByteCount freedBytes = 0;
    std::vector<std::string> failed;  ///< names of what stayed, or why nothing was begun
    bool appBundleMoved = false;      ///< whether the application is gone
    UninstallWay way = UninstallWay::trash;
    std::vector<TrashedItem>
        moved;  ///< what went is in the Trash now, in the order in which it went
};

/// What undoing an uninstall did.
struct PutBackResult {
    std::string appName;
    std::vector<std::string> places;  ///< of what is back
    std::vector<std::string> failed;  ///< names of what stays in the Trash, each with the reason
};

}  // namespace tidewell
