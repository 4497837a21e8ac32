#pragma once

#include <functional>

namespace tidewell {

/// Calls `asked` when the system wants the process to end (SIGTERM, SIGINT, SIGHUP): once, on a
/// thread of its own. The next time the system ends it at once, as it does where no thread or
/// descriptor is to be had. To be called once, on the main thread.
void hearTermination(std::function<void()> asked);

/// From then on a write beyond a limit of size fails, instead of ending the process. To be called
/// first of all.
void outliveForbiddenWrites();

}  // namespace tidewell
