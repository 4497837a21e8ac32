#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace tidewell::linux_system {

/// The number that the whole text is; absent for any other text.
template <class Number>
std::optional<Number> numberIn(std::string_view text) {
    Number number{};
    const auto* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return number;
}

}  // namespace tidewell::linux_system
