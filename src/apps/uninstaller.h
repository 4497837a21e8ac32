#pragma once

#include "apps/uninstall_plan.h"
#include "platform/host.h"

namespace tidewell {

/// Moves an application and then its leftovers, as far as they are selected, to the Trash, one by
/// one, each behind the guard. What the platform's own tool installed for the user goes by that
/// tool, and its leftovers only if that succeeds; what is the system's stays, and its leftovers go
/// alone. Nothing is deleted, and a failure of one item stops none of the others. Does nothing
/// while the application runs, which shows for bundles with an identifier alone: one without is
/// moved all the same. Blocks; any thread but the main one.
UninstallResult uninstall(const UninstallPlan& plan, const Host& host);

/// Puts all that an uninstall moved back where it was, each thing by itself. Agents that it
/// unloaded are loaded with the next login. Blocks; any thread but the main one.
PutBackResult undoUninstall(const UninstallResult& result, const Host& host);

}  // namespace tidewell
