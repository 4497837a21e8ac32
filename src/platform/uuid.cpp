#include "platform/uuid.h"

#include <array>
#include <cstdint>
#include <random>
#include <string_view>

namespace tidewell {

namespace {

std::array<std::uint8_t, 16> randomBytes() {
    std::random_device device;
    std::uniform_int_distribution<int> anyByte(0, 255);
    std::array<std::uint8_t, 16> bytes;
    for (auto& byte : bytes) byte = static_cast<std::uint8_t>(anyByte(device));
    return bytes;
}

}  // namespace

std::string randomUuid() {
    constexpr std::string_view digits = "0123456789ABCDEF";
    auto bytes = randomBytes();
    // The bits that tell the reader how the identifier was made: version 4, variant 1.
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);
    std::string text;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        if (index == 4 || index == 6 || index == 8 || index == 10) text += '-';
        text += digits[bytes[index] >> 4];
        text += digits[bytes[index] & 0x0F];
    }
    return text;
}

}  // namespace tidewell
