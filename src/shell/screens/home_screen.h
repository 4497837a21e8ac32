#pragma once

#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>

#include <memory>

#include "kit/qt/list_model.h"
#include "kit/qt/palette_value.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/words.h"
#include "shell/content_view.h"
#include "shell/screens/home_content.h"

namespace tidewell {

/// Behind the Home section's overview: how full the disk is, and each tool's latest result.
class HomeScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool showsSmartScan READ showsSmartScan NOTIFY changed)
    Q_PROPERTY(bool showsAccessBanner READ showsAccessBanner NOTIFY changed)
    Q_PROPERTY(QString healthLabel READ healthLabel NOTIFY changed)
    Q_PROPERTY(QString healthMessage READ healthMessage NOTIFY changed)
    Q_PROPERTY(QColor healthColor READ healthColor NOTIFY changed)
    Q_PROPERTY(tidewell::PaletteValue healthShades READ healthShades NOTIFY changed)
    Q_PROPERTY(double freeBytes READ freeBytes NOTIFY changed)
    Q_PROPERTY(double usedFraction READ usedFraction NOTIFY changed)
    Q_PROPERTY(QString usedPercent READ usedPercent NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* stats READ stats CONSTANT)
    Q_PROPERTY(QString winnings READ winnings NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* tools READ tools CONSTANT)
    Q_PROPERTY(QString lastCleanup READ lastCleanup NOTIFY changed)
    Q_PROPERTY(QString nextScan READ nextScan NOTIFY changed)
    Q_PROPERTY(QString scanLabel READ scanLabel CONSTANT)
    Q_PROPERTY(QString accessTitle READ accessTitle CONSTANT)
    Q_PROPERTY(QString accessLine READ accessLine CONSTANT)

 public:
    HomeScreen(std::shared_ptr<ContentView> view, QObject* parent);

    bool showsSmartScan() const { return content_.showsSmartScan; }
    bool showsAccessBanner() const { return content_.showsAccessBanner; }
    QString healthLabel() const { return toText(view_->theme->palette().label); }
    QString healthMessage() const { return toText(view_->theme->palette().message); }
    QColor healthColor() const { return toQColor(view_->theme->palette().healthRGB); }
    PaletteValue healthShades() const;
    double freeBytes() const { return static_cast<double>(content_.freeBytes); }
    double usedFraction() const { return content_.usedFraction; }
    QString usedPercent() const { return toText(content_.usedPercent); }
    QAbstractItemModel* stats() { return &stats_; }
    QString winnings() const { return toText(content_.winnings); }
    QAbstractItemModel* tools() { return &tools_; }
    QString lastCleanup() const { return toText(content_.lastCleanup); }
    QString nextScan() const { return toText(content_.nextScan); }
    QString scanLabel() const { return toText(wordsOf(view_->host().system).scanMachine); }
    static QString accessTitle() { return toText(accessBannerTitle); }
    static QString accessLine() { return toText(accessBannerLine); }

    /// To be called when the screen comes into sight, for its dates are told from now. Has its
    /// effect in a later turn.
    Q_INVOKABLE void open();
    Q_INVOKABLE void startScan() { view_->scanEverything(); }
    Q_INVOKABLE void openSettings() { view_->permissions->openSettings(); }
    Q_INVOKABLE void revealApp() { view_->permissions->revealApp(); }
    /// For a row of `tools`.
    Q_INVOKABLE void openTool(int row);

 private:
    void update() override;

    const std::shared_ptr<ContentView> view_;
    HomeContent content_;
    ListModel<StatCellContent> stats_;
    ListModel<HomeToolContent> tools_;
};

}  // namespace tidewell
