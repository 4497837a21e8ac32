#pragma once

#include <string_view>

namespace tidewell {

/// How a symbol is drawn with the font "Material Icons": one glyph, or a second, smaller one inside
/// it.
struct SymbolGlyph {
    enum class Inner { none, drawn, cutOut };

    char32_t glyph = 0;
    char32_t innerGlyph = 0;
    Inner inner = Inner::none;

    bool operator==(const SymbolGlyph&) const = default;
};

/// The drawing of a symbol that the screens name; one with no glyph for a name that is not known.
SymbolGlyph symbolGlyph(std::string_view name);

}  // namespace tidewell
