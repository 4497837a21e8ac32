#pragma once

#include <string_view>

namespace tidewell {

enum class FontDesign { standard, rounded };

/// A face among those that the program is drawn with. Weights are those of OpenType: 100 is thin,
/// 400 regular, 900 black.
struct FontFace {
    std::string_view family;
    int weight;

    bool operator==(const FontFace&) const = default;
};

/// The face for a weight. The standard design has six of them: light stands for all that is
/// thinner, black for heavy too, and regular for any other weight. The rounded design takes weights
/// as they are.
FontFace fontFace(int weight, FontDesign design);

/// The family that symbols are glyphs of.
inline constexpr std::string_view symbolFamily = "Material Icons";

}  // namespace tidewell
