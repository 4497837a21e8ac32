#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/byte_count.h"
#include "platform/files.h"

namespace tidewell {

/// How an application came to the machine, which settles who may take it away.
enum class AppKind {
    bundle,         ///< a folder that is all of it, as on macOS machines
    appImage,       ///< a single file that is all of it
    local,          ///< a program in the home folder that has a desktop entry of the user's own
    flatpakUser,    ///< installed by flatpak for the user
    flatpakSystem,  ///< installed by flatpak for all
    snap,
    package,  ///< installed by the system's package manager
};

/// Its name outside the program; empty for a bundle, the only kind on its machines.
std::string_view nameOf(AppKind kind);
/// What people call that kind of thing.
std::string_view labelOf(AppKind kind);

/// Who carries out an uninstall: this program, by the Trash; the platform's own tool, asked to by
/// this program; or the user, with a command that is shown to him.
enum class UninstallWay { trash, ownTool, shownCommand };

UninstallWay uninstallWay(AppKind kind);

/// An application found on disk.
struct InstalledApp {
    std::string id;    ///< as its system names it; the path of what has no name
    std::string name;  ///< as people know it
    std::string url;   ///< the path of what stands for it: bundle, file, folder or desktop entry
    std::optional<std::string> bundleID;  ///< a bundle's identifier, a desktop entry's id
    std::optional<std::string> version;
    ByteCount sizeBytes = 0;
    std::optional<Date> lastUsed;  ///< absent if the system holds no date
    AppKind kind = AppKind::bundle;
    std::string installerName = {};           ///< what flatpak, snap or the packages call it
    std::vector<std::string> entryIds = {};   ///< of all its desktop entries
    std::vector<std::string> ownNames = {};   ///< what it calls its folders, and no other does
    std::string ownFolder = {};               ///< the home of its sandbox; empty for none
    std::vector<std::string> menuFiles = {};  ///< the entries and icons that go with it
    std::string iconFile = {};                ///< its picture's path; empty for none, and bundles

    bool operator==(const InstalledApp&) const = default;
};

/// "Used 3 months ago", or that there is no record.
std::string lastUsedLabel(const InstalledApp& app, Date now);

/// How often 30 days have passed since the app was last used, never below 0. An app without a date
/// counts as idle for the longest time there is.
std::int64_t monthsIdle(const InstalledApp& app, Date now);

}  // namespace tidewell
