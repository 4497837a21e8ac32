#pragma once

#include <array>
#include <initializer_list>
#include <string_view>

namespace tidewell {

/// A few texts, as constant data.
class ConstantTexts {
 public:
    static constexpr std::size_t capacity = 20;

    constexpr ConstantTexts() = default;
    constexpr ConstantTexts(std::initializer_list<std::string_view> texts) {
        for (const auto text : texts) stored_.at(count_++) = text;
    }
    constexpr const std::string_view* begin() const { return stored_.data(); }
    constexpr const std::string_view* end() const { return stored_.data() + count_; }
    constexpr std::size_t size() const { return count_; }

 private:
    std::array<std::string_view, capacity> stored_{};
    std::size_t count_ = 0;
};

}  // namespace tidewell
