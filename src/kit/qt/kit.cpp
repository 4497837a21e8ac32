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

QColor toQColor(const Color& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.opacity));
}

PaletteValue Kit::palette(SectionAccent accent) {
    return PaletteValue(sectionPalette(accent));
}

QColor Kit::destructive() {
    return toQColor(destructiveRed);
}

QColor Kit::secondary() {
    return toQColor(secondaryColor);
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
