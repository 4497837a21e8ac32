#pragma once

#include <array>
#include <cstddef>

#include "kit/color.h"

namespace tidewell {

/// The three shades of a section.
struct SectionPalette {
    Color primary;  ///< the accent
    Color soft;     ///< lighter, for glows and highlights
    Color deep;     ///< darker, for ends of gradients and shadows

    bool operator==(const SectionPalette&) const = default;
};

enum class SectionAccent { green, blue, violet, amber, cyan, teal };

namespace detail {

struct AccentRow {
    SectionAccent accent;
    SectionPalette palette;
};

inline constexpr std::array accentRows{
    AccentRow{SectionAccent::green, {{0.24, 0.88, 0.50}, {0.55, 0.96, 0.72}, {0.07, 0.48, 0.27}}},
    AccentRow{SectionAccent::blue, {{0.30, 0.55, 1.00}, {0.56, 0.76, 1.00}, {0.10, 0.26, 0.66}}},
    AccentRow{SectionAccent::violet, {{0.62, 0.45, 1.00}, {0.78, 0.67, 1.00}, {0.32, 0.19, 0.66}}},
    AccentRow{SectionAccent::amber, {{1.00, 0.72, 0.30}, {1.00, 0.85, 0.56}, {0.66, 0.42, 0.10}}},
    AccentRow{SectionAccent::cyan, {{0.28, 0.82, 0.88}, {0.58, 0.93, 0.96}, {0.06, 0.42, 0.50}}},
    AccentRow{SectionAccent::teal, {{0.18, 0.75, 0.63}, {0.56, 0.94, 0.84}, {0.06, 0.42, 0.36}}},
};

constexpr bool accentRowsStandInOrder() {
    for (std::size_t index = 0; index < accentRows.size(); ++index)
        if (static_cast<std::size_t>(accentRows[index].accent) != index) return false;
    return true;
}
static_assert(accentRowsStandInOrder());

}  // namespace detail

constexpr const SectionPalette& sectionPalette(SectionAccent accent) {
    return detail::accentRows[static_cast<std::size_t>(accent)].palette;
}

/// The accent of whatever belongs to no section of its own.
inline constexpr SectionAccent defaultSectionAccent = SectionAccent::green;

/// The colour of whatever destroys something, in every section.
inline constexpr Color destructiveRed{0.96, 0.26, 0.37};

}  // namespace tidewell
