#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/host.h"

namespace tidewell {

/// What a start of the window's program was asked for.
struct StartWish {
    HostOptions host;
    std::optional<std::string> url;  ///< one of the program's own
    bool showsTimings = false;       ///< how long the main thread is busy, on standard error
};

/// The program ends at once, with a text for the user.
struct StartEnding {
    enum class Reason { asked, wrongCall };
    Reason reason;
    std::string text;
};

std::variant<StartWish, StartEnding> parseStartWords(const std::vector<std::string>& words);

}  // namespace tidewell
