#pragma once

namespace tidewell {

enum class StandardStream { output, error };

/// Whether people read the stream, and not a file or another program.
bool isTerminal(StandardStream stream);

/// Columns of the terminal behind the stream; 100 if it cannot be told.
int terminalWidth(StandardStream stream);

/// Whether the stream may be coloured: a terminal that can show colours, and no wish of the user's
/// against them ("NO_COLOR").
bool mayColour(StandardStream stream);

}  // namespace tidewell
