#pragma once

#include <QtCore/qobject.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>

#include "shell/section_palette.h"

namespace tidewell {

QColor toQColor(const Color& color);

/// The three shades of a section, as a value of QML.
class PaletteValue {
    Q_GADGET
    QML_VALUE_TYPE(sectionPalette)
    Q_PROPERTY(QColor primary READ primary CONSTANT)
    Q_PROPERTY(QColor soft READ soft CONSTANT)
    Q_PROPERTY(QColor deep READ deep CONSTANT)

 public:
    PaletteValue() : PaletteValue(sectionPalette(defaultSectionAccent)) {}
    explicit PaletteValue(const SectionPalette& palette) : palette_(palette) {}

    QColor primary() const { return toQColor(palette_.primary); }
    QColor soft() const { return toQColor(palette_.soft); }
    QColor deep() const { return toQColor(palette_.deep); }

    bool operator==(const PaletteValue&) const = default;

 private:
    SectionPalette palette_;
};

}  // namespace tidewell
