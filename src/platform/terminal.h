#pragma once

namespace tidewell {

enum class StandardStream { output, error };

/// First of all at start: where the caller has closed a standard stream, opens its number for
/// reading from nothing. What is written there then fails, and no file of the program's ever gets
/// that number and with it what was meant for people.
void keepStandardStreamsApart();

/// Whether people read the stream, and not a file or another program.
bool isTerminal(StandardStream stream);

/// Columns of the terminal behind the stream; 100 if it cannot be told.
int terminalWidth(StandardStream stream);

/// Whether the stream may be coloured: a terminal that can show colours, and no wish of the user's
/// against them ("NO_COLOR").
bool mayColour(StandardStream stream);

}  // namespace tidewell
