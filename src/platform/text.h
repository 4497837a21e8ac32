#pragma once

#include <string>
#include <string_view>

namespace tidewell {

// Names of files are bytes; people read text. Any thread.

/// The text with U+FFFD in the place of each ill-formed UTF-8 sequence.
std::string wellFormedText(std::string_view bytes);

/// The same for a terminal: control characters, and those that turn the direction of writing, are
/// shown escaped, so that a name cannot move the cursor or pose as another.
std::string terminalText(std::string_view bytes);

/// How many columns of a terminal a well-formed text takes.
int displayWidth(std::string_view text);

/// As much of a well-formed text as takes no more columns than these; nothing where there are none.
std::string textThatFits(std::string_view text, int columns);

}  // namespace tidewell
