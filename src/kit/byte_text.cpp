#include "kit/byte_text.h"

#include <array>
#include <string_view>

namespace tidewell {

namespace {

struct Unit {
    std::string_view name;
    ByteCount step;   ///< bytes in one step of the last digit that is shown
    int stepsInUnit;  ///< 10 to the power of the fraction digits
};

constexpr std::array units{
    Unit{"KB", 1'000, 1},
    Unit{"MB", 100'000, 10},
    Unit{"GB", 10'000'000, 100},
    Unit{"TB", 10'000'000'000, 100},
    Unit{"PB", 10'000'000'000'000, 100},
    Unit{"EB", 10'000'000'000'000'000, 100},
};

ByteCount roundedHalfToEven(ByteCount bytes, ByteCount step) {
    const auto whole = bytes / step;
    const auto twice = 2 * (bytes % step);
    const bool roundsUp = twice > step || (twice == step && whole % 2 != 0);
    return roundsUp ? whole + 1 : whole;
}

std::string figure(ByteCount steps, const Unit& unit) {
    auto text = std::to_string(steps / unit.stepsInUnit);
    auto rest = steps % unit.stepsInUnit;
    if (rest == 0) return text;
    text += '.';
    for (auto place = unit.stepsInUnit / 10; rest > 0; rest %= place, place /= 10)
        text += static_cast<char>('0' + rest / place);
    return text;
}

}  // namespace

std::string byteText(ByteCount bytes) {
    if (bytes <= 0) return "Zero KB";
    if (bytes == 1) return "1 byte";
    if (bytes < 1000) return std::to_string(bytes) + " bytes";
    for (const auto& unit : units) {
        const auto steps = roundedHalfToEven(bytes, unit.step);
        if (steps < 1000 * unit.stepsInUnit || &unit == &units.back())
            return figure(steps, unit) + ' ' + std::string(unit.name);
    }
    return {};  // the last unit takes whatever is left
}

}  // namespace tidewell
