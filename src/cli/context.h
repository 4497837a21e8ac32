#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "async/main_loop.h"
#include "platform/host.h"

namespace tidewell::cli {

/// How the program ends, as scripts read it.
enum class ExitStatus {
    done = 0,
    leftBehind = 1,     ///< a removal left something behind, or was refused
    wrongCall = 2,      ///< the words of the call are off; nothing was done
    internalError = 3,  ///< also if what was done could not be said
};

enum class OutputForm { text, json };

/// What every command is given.
struct Context {
    Host host;
    OutputForm form = OutputForm::text;
    RunLoop& loop;
};

/// A call whose words are off: what is said to the user, on standard error.
struct WrongCall {
    std::string problem;
};

/// Runs a task of the main thread to its end.
void runToEnd(RunLoop& loop, Task<> task);

}  // namespace tidewell::cli
