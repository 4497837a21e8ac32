#include "kit/qt/kit.h"

#include <string_view>

#include "kit/byte_text.h"
#include "kit/color.h"
#include "kit/fonts.h"
#include "kit/symbols.h"

namespace tidewell {

namespace {

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString toQString(char32_t character) {
    return character == 0 ? QString() : QString::fromUcs4(&character, 1);
}

SymbolGlyph glyphOf(const QString& symbol) {
    return symbolGlyph(symbol.toStdString());
}

FontFace face(int weight, bool isRounded) {
    return fontFace(weight, isRounded ? FontDesign::rounded : FontDesign::standard);
}

}  // namespace

QColor toQColor(const Rgb& rgb) {
    return QColor::fromRgbF(static_cast<float>(rgb.red), static_cast<float>(rgb.green),
                            static_cast<float>(rgb.blue));
}

PaletteValue Kit::palette(SectionAccent accent) {
    return PaletteValue(sectionPalette(accent));
}

QColor Kit::destructive() {
    return toQColor(destructiveRed);
}

QColor Kit::secondary() {
    auto color = toQColor({secondaryColor.red, secondaryColor.green, secondaryColor.blue});
    color.setAlphaF(static_cast<float>(secondaryColor.opacity));
    return color;
}

QString Kit::symbolFamilyName() {
    return toQString(symbolFamily);
}

QString Kit::byteText(double bytes) {
    const auto text = tidewell::byteText(static_cast<ByteCount>(bytes));
    return toQString(text);
}

QString Kit::glyph(const QString& symbol) {
    return toQString(glyphOf(symbol).glyph);
}

QString Kit::innerGlyph(const QString& symbol) {
    return toQString(glyphOf(symbol).innerGlyph);
}

bool Kit::isInnerCutOut(const QString& symbol) {
    return glyphOf(symbol).inner == SymbolGlyph::Inner::cutOut;
}

QString Kit::fontFamily(bool isRounded) {
    return toQString(face(400, isRounded).family);
}

int Kit::fontWeight(int weight, bool isRounded) {
    return face(weight, isRounded).weight;
}

}  // namespace tidewell
