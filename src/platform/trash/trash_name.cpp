#include "platform/trash/trash_name.h"

#include <algorithm>

#include "platform/path_text.h"

namespace tidewell::trash {

namespace {

/// Of one character, in bytes.
constexpr std::size_t longestCharacter = 4;

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Bytes that are no text are cut anywhere.
std::string_view shortened(std::string_view text, std::size_t room) {
    if (text.size() <= room) return text;
    auto end = room;
    while (end > 0 && room - end < longestCharacter && continuesCharacter(text[end])) --end;
    return text.substr(0, continuesCharacter(text[end]) ? room : end);
}

}  // namespace

std::string trashName(std::string_view name, int number, std::size_t limit) {
    const auto suffix = number == 1 ? std::string() : " " + std::to_string(number);
    auto stemLength = extensionPosition(name);
    const auto tailLength = [&] { return name.size() - stemLength + suffix.size(); };
    if (tailLength() + longestCharacter > limit) stemLength = name.size();
    const auto room = limit - std::min(limit, tailLength());
    return std::string(shortened(name.substr(0, stemLength), room)) + suffix +
           std::string(name.substr(stemLength));
}

}  // namespace tidewell::trash
