#include "cli/progress_line.h"

#include <iostream>
#include <string>

#include "kit/percent_text.h"
#include "platform/terminal.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

constexpr std::string_view wipe = "\r\033[K";

/// As much of the text as fits, so that the line never wraps into a second one.
std::string fitting(std::string text, int columns) {
    while (displayWidth(text) > columns) text = wellFormedText(text.substr(0, text.size() - 4));
    return text;
}

}  // namespace

ProgressLine::ProgressLine() : isTerminal_(isTerminal(StandardStream::error)) {}

ProgressLine::~ProgressLine() {
    if (isShown_) std::cerr << wipe << std::flush;
}

void ProgressLine::show(double fraction, std::string_view what) {
    if (!isTerminal_) return;
    isShown_ = true;
    const auto text = percentText(fraction) + "  " + terminalText(what);
    std::cerr << wipe << fitting(text, terminalWidth(StandardStream::error) - 1) << std::flush;
}

}  // namespace tidewell::cli
