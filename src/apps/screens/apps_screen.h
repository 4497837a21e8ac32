#pragma once

#include <QtCore/qstring.h>

#include <memory>

#include "apps/screens/apps_content.h"
#include "kit/qt/list_model.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"

namespace tidewell {

/// Behind the Apps tool and the sheet that confirms an uninstall.
class AppsScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(QString noticeSymbol READ noticeSymbol NOTIFY changed)
    Q_PROPERTY(QString noticeLine READ noticeLine NOTIFY changed)
    Q_PROPERTY(QString noticeTitle READ noticeTitle NOTIFY changed)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString sortLabel READ sortLabel NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* sortChoices READ sortChoices CONSTANT)
    Q_PROPERTY(bool hasBanner READ hasBanner NOTIFY changed)
    Q_PROPERTY(bool isBannerWarning READ isBannerWarning NOTIFY changed)
    Q_PROPERTY(QString bannerSymbol READ bannerSymbol NOTIFY changed)
    Q_PROPERTY(QString bannerTitle READ bannerTitle NOTIFY changed)
    Q_PROPERTY(QString bannerLine READ bannerLine NOTIFY changed)
    Q_PROPERTY(QString undoLabel READ undoLabel NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* cards READ cards CONSTANT)
    Q_PROPERTY(bool isHuntingLeftovers READ isHuntingLeftovers NOTIFY changed)
    Q_PROPERTY(bool hasSheet READ hasSheet NOTIFY changed)
    Q_PROPERTY(QString sheetTitle READ sheetTitle NOTIFY changed)
    Q_PROPERTY(QString sheetLine READ sheetLine NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* sheetRows READ sheetRows CONSTANT)
    Q_PROPERTY(QString sheetEmptyNote READ sheetEmptyNote NOTIFY changed)
    Q_PROPERTY(QString undoLine READ undoLine NOTIFY changed)
    Q_PROPERTY(QString confirmLabel READ confirmLabel NOTIFY changed)
    Q_PROPERTY(bool canConfirm READ canConfirm NOTIFY changed)
    Q_PROPERTY(QString commandLead READ commandLead NOTIFY changed)
    Q_PROPERTY(QString commandText READ commandText NOTIFY changed)
    Q_PROPERTY(QString commandNote READ commandNote NOTIFY changed)
    Q_PROPERTY(QString commandWarning READ commandWarning NOTIFY changed)
    Q_PROPERTY(bool isCommandCopied READ isCommandCopied NOTIFY changed)

 public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML knows enumerators by their capital
    enum Phase { Idle, Scanning, List };
    Q_ENUM(Phase)

    AppsScreen(std::shared_ptr<AppsViewModel> model, QObject* parent);

    Phase phase() const { return static_cast<Phase>(content_.phase); }
    QString subtitle() const { return toText(content_.subtitle); }
    QString noticeSymbol() const;
    QString noticeTitle() const;
    QString noticeLine() const;
    bool isEmpty() const { return phase() == List && content_.notice.has_value(); }
    double progress() const { return content_.scanProgress; }
    QString sortLabel() const { return toText(content_.sortLabel); }
    QAbstractItemModel* sortChoices() { return &sortChoices_; }
    bool hasBanner() const { return content_.banner.has_value(); }
    bool isBannerWarning() const { return banner_.tone == ResultBanner::Tone::warning; }
    QString bannerSymbol() const { return toText(banner_.symbol); }
    QString bannerTitle() const { return toText(banner_.title); }
    QString bannerLine() const { return toText(banner_.line); }
    QString undoLabel() const { return toText(banner_.undoLabel); }
    QAbstractItemModel* cards() { return &cards_; }
    bool isHuntingLeftovers() const { return content_.isHuntingLeftovers; }
    bool hasSheet() const { return content_.sheet.has_value(); }
    QString sheetTitle() const { return toText(sheet_.title); }
    QString sheetLine() const { return toText(sheet_.line); }
    QAbstractItemModel* sheetRows() { return &sheetRows_; }
    QString sheetEmptyNote() const { return toText(sheet_.emptyNote); }
    QString undoLine() const { return toText(sheet_.footer); }
    QString confirmLabel() const { return toText(sheet_.confirmLabel); }
    bool canConfirm() const { return sheet_.canConfirm; }
    QString commandLead() const { return toText(command().lead); }
    QString commandText() const { return toText(command().command); }
    QString commandNote() const { return toText(command().note); }
    QString commandWarning() const { return toText(command().warning); }
    bool isCommandCopied() const { return isCommandCopied_; }

    /// To be called when the screen comes into sight, for its dates are told from now. Has its
    /// effect in a later turn.
    Q_INVOKABLE void open();
    Q_INVOKABLE void scan();
    /// For a row of `sortChoices`.
    Q_INVOKABLE void sortBy(int row);
    /// For a row of `cards`: searches what belongs to the application, then shows the sheet.
    Q_INVOKABLE void prepareUninstall(int row);
    /// For a row of `sheetRows` that has a tick.
    Q_INVOKABLE void toggleLeftover(int row);
    /// Puts the sheet's command where it can be pasted from.
    Q_INVOKABLE void copyCommand();
    Q_INVOKABLE void confirmUninstall();
    Q_INVOKABLE void cancelUninstall() { model_->pendingPlan = std::nullopt; }
    Q_INVOKABLE void dismissResult() { model_->dismissResult(); }
    /// Undoes the uninstall that the banner tells of.
    Q_INVOKABLE void putBack();

 private:
    void update() override;
    CommandContent command() const { return sheet_.command.value_or(CommandContent{}); }

    const std::shared_ptr<AppsViewModel> model_;
    AppsContent content_;
    // The last ones that there were: they stay legible while they go.
    ResultBanner banner_;
    UninstallSheetContent sheet_;
    bool isCommandCopied_ = false;
    ListModel<SortChoice> sortChoices_;
    ListModel<AppCardContent> cards_;
    ListModel<UninstallRow> sheetRows_;
};

}  // namespace tidewell
