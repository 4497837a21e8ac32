#include "cli/report.h"

#include <algorithm>
#include <iostream>

#include "platform/json.h"
#include "platform/terminal.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

std::string_view escapeSequence(Ink ink) {
    switch (ink) {
        case Ink::plain:
            return "";
        case Ink::strong:
            return "\033[1m";
        case Ink::faint:
            return "\033[2m";
        case Ink::good:
            return "\033[32m";
        case Ink::careful:
            return "\033[33m";
        case Ink::bad:
            return "\033[31m";
    }
    return {};
}

std::string blanks(std::string_view text, int columns) {
    return std::string(static_cast<std::size_t>(std::max(columns - displayWidth(text), 0)), ' ');
}

}  // namespace

std::string inked(std::string_view text, Ink ink) {
    static const bool isColoured = mayColour(StandardStream::output);
    if (!isColoured || ink == Ink::plain) return std::string(text);
    return std::string(escapeSequence(ink)) + std::string(text) + "\033[0m";
}

std::string leftAligned(std::string_view text, int columns) {
    return std::string(text) + blanks(text, columns);
}

std::string rightAligned(std::string_view text, int columns) {
    return blanks(text, columns) + std::string(text);
}

void printLine(std::string_view line) {
    std::cout << line << '\n';
}

void tellUnread(const LeftOut& leftOut, System system) {
    if (const auto note = unreadNote(leftOut, system))
        std::cerr << "tidewell-cli: " << *note << '\n';
}

void printDocument(const Value& document) {
    std::cout << writeJson(document, JsonLayout::indented) << '\n';
}

}  // namespace tidewell::cli
