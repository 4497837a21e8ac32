#include "platform/workspace.h"

#include <string_view>

namespace tidewell {

std::string fileUrl(const std::string& path) {
    constexpr std::string_view plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string url = "file://";
    for (const char character : path) {
        if (plain.find(character) != std::string_view::npos) {
            url += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        url += '%';
        url += digits[byte >> 4];
        url += digits[byte & 0x0F];
    }
    return url;
}

}  // namespace tidewell
