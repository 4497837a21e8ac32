#include "platform/trash/trash_info.h"

#include <algorithm>

#include "platform/dates.h"
#include "platform/path_text.h"

namespace tidewell::trash {

namespace {

constexpr std::string_view header = "[Trash Info]";
constexpr std::string_view pathKey = "Path=";
constexpr std::string_view dateKey = "DeletionDate=";
constexpr std::string_view digits = "0123456789ABCDEF";

bool isPlain(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= '0' && byte <= '9') ||
           std::string_view("-._~/").find(byte) != std::string_view::npos;
}

/// Below 0 for what is no hex digit.
int valueOfDigit(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return -1;
}

/// Takes the first line off the text.
std::string_view takeLine(std::string_view& text) {
    const auto length = std::min(text.find('\n'), text.size());
    const auto line = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

bool isUsable(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) return false;
    const auto pieces = pathPieces(path);
    return std::ranges::find(pieces, "..") == pieces.end();
}

}  // namespace

std::string percentEncoded(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        if (isPlain(byte)) {
            text += byte;
            continue;
        }
        const auto value = static_cast<unsigned char>(byte);
        text += {'%', digits[value / 16], digits[value % 16]};
    }
    return text;
}

std::optional<std::string> percentDecoded(std::string_view text) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            bytes += text[at];
            continue;
        }
        if (text.size() - at < 3) return std::nullopt;
        const int high = valueOfDigit(text[at + 1]);
        const int low = valueOfDigit(text[at + 2]);
        if (high < 0 || low < 0) return std::nullopt;
        bytes += static_cast<char>(high * 16 + low);
        at += 2;
    }
    return bytes;
}

std::string trashInfoText(const TrashInfo& info) {
    auto text =
        std::string(header) + "\n" + std::string(pathKey) + percentEncoded(info.path) + "\n";
    if (info.deletedAt) text += std::string(dateKey) + localDateAndTime(*info.deletedAt) + "\n";
    return text;
}

std::optional<TrashInfo> parseTrashInfo(std::string_view text) {
    if (takeLine(text) != header) return std::nullopt;
    std::optional<std::string_view> path;
    std::optional<std::string_view> date;
    while (!text.empty()) {
        const auto line = takeLine(text);
        if (line.starts_with('[')) break;
        if (!path && line.starts_with(pathKey)) path = line.substr(pathKey.size());
        if (!date && line.starts_with(dateKey)) date = line.substr(dateKey.size());
    }
    auto decoded = path ? percentDecoded(*path) : std::nullopt;
    if (!decoded || !isUsable(*decoded)) return std::nullopt;
    return TrashInfo{.path = *std::move(decoded),
                     .deletedAt = date ? parseLocalDateAndTime(*date) : std::nullopt};
}

}  // namespace tidewell::trash
