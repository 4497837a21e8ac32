#pragma once

namespace tidewell {

/// A colour of the screens: sRGB components and opacity, each from 0 to 1.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double opacity = 1;

    constexpr Color withOpacity(double newOpacity) const { return {red, green, blue, newOpacity}; }
    bool operator==(const Color&) const = default;
};

/// White of the given opacity.
constexpr Color whiteAt(double opacity) {
    return {1, 1, 1, opacity};
}

/// For text and symbols of second rank.
inline constexpr Color secondaryColor = whiteAt(0.62);

}  // namespace tidewell
