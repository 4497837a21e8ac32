#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/host.h"
#include "platform/removal.h"

namespace tidewell {

/// The last word on whether an uninstall may move a path to the Trash: only what lies in the
/// Applications folders and in the user's own Library, never those folders themselves and never
/// anything of the system's. Any thread.
class UninstallGuard {
 public:
    explicit UninstallGuard(const Host& host);

    /// Decides on the text of the path alone, standardised.
    bool isAllowed(std::string_view path) const;

    /// Asks twice: for the path as it is named, and for its real location. So an Applications
    /// folder that is a link into Documents moves nothing out of there; nor does one that is
    /// mounted from there, and nothing goes that holds keys. Absent also if the folder that holds
    /// the path is missing.
    std::optional<TrashablePath> approve(std::string_view path) const;

 private:
    Host host_;
    std::string systemFolder_;
    std::string applications_;
    std::string ownApplications_;
    std::string library_;
};

}  // namespace tidewell
