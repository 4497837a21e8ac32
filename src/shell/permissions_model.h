#pragma once

#include <memory>
#include <string>

#include "async/observable.h"
#include "platform/host.h"
#include "platform/workspace.h"

namespace tidewell {

/// Whether the user has granted Full Disk Access, told from whether a file can be opened that only
/// a program with that access may read. It is looked at once at the start, and whenever the program
/// comes to the front: so a user who comes back from the settings sees the change. Main thread
/// only.
class PermissionsModel : public std::enable_shared_from_this<PermissionsModel> {
 public:
    PermissionsModel(Host host, Workspace workspace, Signal& didBecomeActive);

    /// Fired before each change of what follows.
    Signal willChange;

    /// Published at every look, also when it is the same as before.
    Published<bool> hasFullDiskAccess{willChange, false};

    /// Whether the machine's system has such an access at all. Where it has none, nothing is ever
    /// shown of it.
    bool hasAccessToGrant() const;
    bool asksForAccess() const { return hasAccessToGrant() && !hasFullDiskAccess(); }

    /// Opens the settings where the access is granted.
    void openSettings() const;
    /// Shows the program itself in the file manager, to be dragged from there into the settings.
    void revealApp() const;

 private:
    void look();

    Host host_;
    Workspace workspace_;
    Subscription activationObserver_;
};

}  // namespace tidewell
