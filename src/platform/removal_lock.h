#pragma once

#include "platform/host.h"
#include "platform/user_defaults.h"

namespace tidewell {

/// Whether the program's makers have run it on the system that it was built for.
enum class MakersTrial { done, outstanding };
MakersTrial makersTrial();

/// The running system by its name and release. Any thread.
std::string systemRelease();

/// Locked where the makers never ran it, until its selfcheck has passed there: this version, on
/// this release of the system. Whatever keeps that from being read leaves it locked.
Removals removalsOn(const Host& host, MakersTrial trial);

/// Remembers that the selfcheck has passed, in a file of its own beside the program's.
UserDefaults::Written unlockRemovals(const Host& host);

}  // namespace tidewell
