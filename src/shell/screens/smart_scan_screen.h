#pragma once

#include <QtCore/qstring.h>

#include <memory>

#include "kit/qt/list_model.h"
#include "kit/qt/palette_value.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "shell/content_view.h"
#include "shell/screens/smart_scan_content.h"

namespace tidewell {

/// Behind the smart scan: how far it is, what it found, and the way into the tools.
class SmartScanScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* segments READ segments CONSTANT)
    Q_PROPERTY(QString centreSymbol READ centreSymbol NOTIFY changed)
    Q_PROPERTY(QString centreFigure READ centreFigure NOTIFY changed)
    Q_PROPERTY(QString centreCaption READ centreCaption NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString line READ line NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* cards READ cards CONSTANT)
    Q_PROPERTY(QAbstractItemModel* insights READ insights CONSTANT)
    Q_PROPERTY(QString primaryLabel READ primaryLabel NOTIFY changed)

 public:
    SmartScanScreen(std::shared_ptr<ContentView> view, QObject* parent);

    bool isRunning() const { return content_.isRunning; }
    QAbstractItemModel* segments() { return &segments_; }
    QString centreSymbol() const { return toText(content_.centre.symbol); }
    QString centreFigure() const { return toText(content_.centre.figure); }
    QString centreCaption() const { return toText(content_.centre.caption); }
    QString title() const { return toText(content_.title); }
    QString line() const { return toText(content_.line); }
    QAbstractItemModel* cards() { return &cards_; }
    QAbstractItemModel* insights() { return &insights_; }
    /// Empty if there is nothing to go on with.
    QString primaryLabel() const;

    Q_INVOKABLE void stop() { view_->smartScan->stop(); }
    /// Back to the overview, once the run has ended.
    Q_INVOKABLE void back();
    /// For a row of `cards`; nothing happens for a tool that has nothing to show yet.
    Q_INVOKABLE void openCard(int row);
    Q_INVOKABLE void openPrimary();

 private:
    void update() override;

    const std::shared_ptr<ContentView> view_;
    SmartScanContent content_;
    ListModel<RingSegmentContent> segments_;
    ListModel<ToolCardContent> cards_;
    ListModel<InsightContent> insights_;
};

}  // namespace tidewell
