#pragma once

#include <string>
#include <string_view>

#include "kit/left_out.h"
#include "platform/value.h"

namespace tidewell::cli {

// What people read on standard output. Texts may come from the disk: they are shown as
// platform/text.h has it, so that no name can play tricks on the terminal.

enum class Ink { plain, strong, faint, good, careful, bad };

/// The text as it may stand on the terminal, coloured if standard output may be.
std::string inked(std::string_view text, Ink ink);

/// Filled up with blanks to so many columns; a longer text stays whole.
std::string leftAligned(std::string_view text, int columns);
std::string rightAligned(std::string_view text, int columns);

void printLine(std::string_view line = {});

/// Says on standard error, behind a list, how much of the machine could not be read.
void tellUnread(const LeftOut& leftOut, System system);

/// The one document of a call with --json.
void printDocument(const Value& document);

}  // namespace tidewell::cli
