#pragma once

#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>

#include <functional>

#include "kit/qt/list_model.h"
#include "kit/qt/palette_value.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/words.h"
#include "shell/application.h"
#include "shell/screens/menu_bar_content.h"

namespace tidewell {

/// Behind the status item's popover, once each time that it opens: the disk is read then, and what
/// was reclaimed is followed. Knows nothing of the window's root; whatever it orders, it closes
/// the popover first.
class MenuBarScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QString healthLabel READ healthLabel NOTIFY changed)
    Q_PROPERTY(QString healthMessage READ healthMessage NOTIFY changed)
    Q_PROPERTY(QColor healthColor READ healthColor NOTIFY changed)
    Q_PROPERTY(double usedFraction READ usedFraction NOTIFY changed)
    Q_PROPERTY(QString usedPercent READ usedPercent NOTIFY changed)
    Q_PROPERTY(double freeBytes READ freeBytes NOTIFY changed)
    Q_PROPERTY(QString freeOf READ freeOf NOTIFY changed)
    Q_PROPERTY(QString reclaimed READ reclaimed NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* cards READ cards CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString scanLabel READ scanLabel CONSTANT)
    Q_PROPERTY(QString openLabel READ openLabel CONSTANT)

 public:
    /// The application outlives it. `close` closes the popover and leaves this alive until the
    /// present turn has ended.
    MenuBarScreen(Application& application, std::function<void()> close, QObject* parent = nullptr);

    QString healthLabel() const { return toText(content_.health.label); }
    QString healthMessage() const { return toText(content_.health.message); }
    QColor healthColor() const { return toQColor(content_.health.healthRGB); }
    double usedFraction() const { return content_.usedFraction; }
    QString usedPercent() const { return toText(content_.usedPercent); }
    double freeBytes() const { return static_cast<double>(content_.freeBytes); }
    QString freeOf() const { return toText(content_.freeOf); }
    /// Empty when there is nothing to tell.
    QString reclaimed() const { return toText(content_.reclaimed.value_or("")); }
    QAbstractItemModel* cards() { return &cards_; }
    static QString title() { return toText(statusItemTitle); }
    QString scanLabel() const { return toText(wordsOf(application_.host.system).scanMachine); }
    static QString openLabel() { return toText(openFullAppLabel); }

    Q_INVOKABLE void close() { close_(); }
    /// For a row of `cards`.
    Q_INVOKABLE void openCard(int row);
    Q_INVOKABLE void scan();
    Q_INVOKABLE void openApp();

 private:
    void update() override;

    Application& application_;
    const std::function<void()> close_;
    MenuBarReadings readings_;
    MenuBarContent content_;
    ListModel<Mode> cards_;
};

}  // namespace tidewell
