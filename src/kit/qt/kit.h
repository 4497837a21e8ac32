#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qstring.h>
#include <QtQml/qqmlregistration.h>

#include "kit/qt/palette_value.h"
#include "kit/settling.h"

namespace tidewell {

/// What the components take from the program's tables and rules. Main thread.
class Kit : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(tidewell::PaletteValue green READ green CONSTANT)
    Q_PROPERTY(tidewell::PaletteValue blue READ blue CONSTANT)
    Q_PROPERTY(tidewell::PaletteValue violet READ violet CONSTANT)
    Q_PROPERTY(tidewell::PaletteValue amber READ amber CONSTANT)
    Q_PROPERTY(tidewell::PaletteValue cyan READ cyan CONSTANT)
    Q_PROPERTY(tidewell::PaletteValue teal READ teal CONSTANT)
    Q_PROPERTY(QColor destructive READ destructive CONSTANT)
    Q_PROPERTY(QColor secondary READ secondary CONSTANT)
    Q_PROPERTY(int settlingTime READ settlingMilliseconds CONSTANT)
    Q_PROPERTY(QString symbolFamily READ symbolFamilyName CONSTANT)

 public:
    static PaletteValue palette(SectionAccent accent);
    static PaletteValue green() { return palette(SectionAccent::green); }
    static PaletteValue blue() { return palette(SectionAccent::blue); }
    static PaletteValue violet() { return palette(SectionAccent::violet); }
    static PaletteValue amber() { return palette(SectionAccent::amber); }
    static PaletteValue cyan() { return palette(SectionAccent::cyan); }
    static PaletteValue teal() { return palette(SectionAccent::teal); }
    static QColor destructive();
    static QColor secondary();
    /// In milliseconds.
    static int settlingMilliseconds() { return static_cast<int>(settlingTime.count()); }
    static QString symbolFamilyName();

    /// A figure that is on its way to a byte count: its fraction is cut off.
    Q_INVOKABLE static QString byteText(double bytes);

    /// The text that draws a symbol in the symbols' font; empty for an unknown name.
    Q_INVOKABLE static QString glyph(const QString& symbol);
    /// The text to draw inside it, half as big; empty for most.
    Q_INVOKABLE static QString innerGlyph(const QString& symbol);
    /// Whether the inner text is cut out of the outer one.
    Q_INVOKABLE static bool isInnerCutOut(const QString& symbol);

    Q_INVOKABLE static QString fontFamily(bool isRounded);
    Q_INVOKABLE static int fontWeight(int weight, bool isRounded);
};

}  // namespace tidewell
