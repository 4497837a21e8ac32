#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtQml/qqml.h>
#include <QtQuick/qquickitem.h>

#include <optional>

#include "kit/qt/palette_value.h"

namespace tidewell {

/// The palette that holds at a place of the item tree, in QML `Ambient.palette`: set on an item, it
/// holds for all that lies inside it, down to items that set one of their own. Without any, it is
/// the default one. A tree that is put into another one later takes over what holds there.
class Ambient : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("holds at an item")
    QML_ATTACHED(tidewell::Ambient)
    Q_PROPERTY(tidewell::PaletteValue palette READ palette WRITE setPalette RESET resetPalette
                   NOTIFY paletteChanged)

 public:
    explicit Ambient(QObject* holder);
    static Ambient* qmlAttachedProperties(QObject* holder) { return new Ambient(holder); }

    PaletteValue palette() const { return palette_; }
    void setPalette(const PaletteValue& palette);
    void resetPalette();

 signals:
    void paletteChanged();

 private:
    void set(const std::optional<PaletteValue>& palette);
    void resolve();

    QPointer<QQuickItem> holder_;
    QPointer<QQuickItem>
        top_;  ///< of the tree that the holder is in; watched, for it may be grafted
    std::optional<PaletteValue> own_;
    PaletteValue palette_;
};

}  // namespace tidewell
