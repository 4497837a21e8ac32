#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "apps/uninstall_ground.h"
#include "platform/host.h"
#include "platform/removal.h"

namespace tidewell {

/// The last word on whether an uninstall may move a path to the Trash. On macOS machines only what
/// lies in the Applications folders and in the user's own Library; on Linux machines only what lies
/// where applications and their things lie in the home folder, and programs. Never those folders
/// themselves, and never anything of the system's. Any thread.
class UninstallGuard {
 public:
    explicit UninstallGuard(const Host& host);

    /// Decides on the text of the path alone, standardised.
    bool isAllowed(std::string_view path) const;

    /// Asks twice: for the path as it is named, and for its real location. So an Applications
    /// folder that is a link into Documents moves nothing out of there; nor does one that is
    /// mounted from there, and nothing goes that holds keys. Of personal folders nothing goes but
    /// an AppImage that lies directly in one. Absent also if the folder that holds the path is
    /// missing.
    std::optional<TrashablePath> approve(std::string_view path) const;

 private:
    bool mayGo(std::string_view path) const;
    bool isOwnProgram(const std::string& path) const;
    bool isLooseAppImage(const std::string& real) const;

    Host host_;
    UninstallGround ground_;
};

}  // namespace tidewell
