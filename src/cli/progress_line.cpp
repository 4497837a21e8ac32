#include "cli/progress_line.h"

#include <iostream>
#include <string>

#include "kit/percent_text.h"
#include "platform/terminal.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

constexpr std::string_view wipe = "\r\033[K";

}  // namespace

ProgressLine::ProgressLine() : isTerminal_(isTerminal(StandardStream::error)) {}

ProgressLine::~ProgressLine() {
    if (isShown_) std::cerr << wipe << std::flush;
}

void ProgressLine::show(double fraction, std::string_view what) {
    show(percentText(fraction) + "  " + std::string(what));
}

void ProgressLine::show(std::string_view what) {
    if (!isTerminal_) return;
    isShown_ = true;
    const auto text = terminalText(what);
    // One that wrapped into a second line could not be wiped.
    const int columns = terminalWidth(StandardStream::error) - 1;
    std::cerr << wipe << textThatFits(text, columns) << std::flush;
}

}  // namespace tidewell::cli
