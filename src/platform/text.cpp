#include "platform/text.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <cstdio>
#include <functional>

namespace tidewell {

namespace {

void forEachCharacter(std::string_view bytes, const std::function<void(UChar32)>& visit) {
    const auto* text = reinterpret_cast<const uint8_t*>(bytes.data());
    const auto length = static_cast<int32_t>(bytes.size());
    for (int32_t position = 0; position < length;) {
        UChar32 character;
        U8_NEXT_OR_FFFD(text, position, length, character);
        visit(character);
    }
}

void append(std::string& text, UChar32 character) {
    icu::UnicodeString(character).toUTF8String(text);
}

void appendEscaped(std::string& text, UChar32 character) {
    char escaped[16];
    switch (character) {
        case '\n':
            text += "\\n";
            return;
        case '\t':
            text += "\\t";
            return;
        case '\r':
            text += "\\r";
            return;
        default:
            break;
    }
    std::snprintf(escaped, sizeof escaped, character < 0x100 ? "\\x%02x" : "\\u%04x",
                  static_cast<unsigned>(character));
    text += escaped;
}

int width(UChar32 character) {
    const auto category = u_charType(character);
    if (category == U_NON_SPACING_MARK || category == U_ENCLOSING_MARK || category == U_FORMAT_CHAR)
        return 0;
    const auto eastAsian = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return eastAsian == U_EA_WIDE || eastAsian == U_EA_FULLWIDTH ? 2 : 1;
}

}  // namespace

std::string wellFormedText(std::string_view bytes) {
    std::string text;
    forEachCharacter(bytes, [&text](UChar32 character) { append(text, character); });
    return text;
}

std::string terminalText(std::string_view bytes) {
    std::string text;
    forEachCharacter(bytes, [&text](UChar32 character) {
        if (u_iscntrl(character)) {  // also what turns the direction of writing
            appendEscaped(text, character);
        } else {
            append(text, character);
        }
    });
    return text;
}

int displayWidth(std::string_view text) {
    int columns = 0;
    forEachCharacter(text, [&columns](UChar32 character) { columns += width(character); });
    return columns;
}

std::string textThatFits(std::string_view text, int columns) {
    std::string fitting;
    int used = 0;
    forEachCharacter(text, [&](UChar32 character) {
        used += width(character);
        if (used <= columns) append(fitting, character);
    });
    return fitting;
}

}  // namespace tidewell
