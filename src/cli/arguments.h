#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>

#include "cli/commands/commands.h"
#include "platform/host.h"

namespace tidewell::cli {

/// A call as its words say it.
struct Call {
    HostOptions host;
    OutputForm form = OutputForm::text;
    Consent consent = Consent::notGiven;  ///< to a change of whatever kind the command makes
    std::function<Outcome(const Context&)> run;
};

/// The call ends here: help was asked for, or its words are off. The text goes to standard output
/// in the first case and to standard error in the second.
struct Ending {
    ExitStatus status;
    std::string text;
};

std::variant<Call, Ending> parseArguments(int count, char** words);

}  // namespace tidewell::cli
