#pragma once

#include <QtCore/qstring.h>

#include <memory>

#include "cleanup/screens/scan_content.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/words.h"

namespace tidewell {

/// Behind the Clean tool's last screen: during and after a clean.
class CleanedScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isCleaning READ isCleaning NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString percent READ percent NOTIFY changed)
    Q_PROPERTY(bool hasReclaimed READ hasReclaimed NOTIFY changed)
    Q_PROPERTY(double reclaimedBytes READ reclaimedBytes NOTIFY changed)
    Q_PROPERTY(QString ringLine READ ringLine NOTIFY changed)
    Q_PROPERTY(QString freeBefore READ freeBefore NOTIFY changed)
    Q_PROPERTY(QString freeAfter READ freeAfter NOTIFY changed)
    Q_PROPERTY(QString failureNote READ failureNote NOTIFY changed)
    Q_PROPERTY(QString cleaningTitle READ cleaningTitle CONSTANT)
    Q_PROPERTY(QString doneTitle READ doneTitle CONSTANT)
    Q_PROPERTY(QString doneLine READ doneLine CONSTANT)
    Q_PROPERTY(QString failureTitle READ failureTitle CONSTANT)

 public:
    CleanedScreen(std::shared_ptr<CleanupViewModel> model, QObject* parent);

    bool isCleaning() const { return content_.isCleaning; }
    double progress() const { return model_->cleanProgress(); }
    QString percent() const { return toText(content_.percent); }
    bool hasReclaimed() const { return content_.reclaimed.has_value(); }
    double reclaimedBytes() const { return static_cast<double>(content_.reclaimed.value_or(0)); }
    QString ringLine() const { return toText(content_.ringLine); }
    QString freeBefore() const { return toText(content_.freeBefore); }
    QString freeAfter() const { return toText(content_.freeAfter); }
    /// Empty when nothing failed.
    QString failureNote() const { return toText(content_.failureNote.value_or("")); }
    static QString cleaningTitle() { return toText(tidewell::cleaningTitle); }
    static QString doneTitle() { return toText(allCleanTitle); }
    QString doneLine() const { return toText(wordsOf(model_->servedSystem()).allClean); }
    static QString failureTitle() { return toText(notCleanedTitle); }

    /// Back to the tool's first screen.
    Q_INVOKABLE void finish() { model_->reset(); }

 private:
    void update() override { content_ = cleanedContent(*model_); }

    const std::shared_ptr<CleanupViewModel> model_;
    CleanedContent content_;
};

}  // namespace tidewell
