#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cleanup/cleaning_session.h"
#include "cli/context.h"
#include "cli/selection.h"

namespace tidewell::cli {

// What `clean` and `dev` do alike with their sessions.

/// Ticks exactly what the call wishes for.
std::optional<WrongCall> tickAsWished(CleaningSession& session, const SelectionWish& wish);

/// Runs a session's clean; a first Ctrl-C ends it behind the item in hand.
ExitStatus cleanToEnd(const Context& context, CleaningSession& session, Task<> cleaning);

/// Says what could not be removed, if there was anything.
void printFailures(const std::vector<std::string>& failedTitles, System system);

}  // namespace tidewell::cli
