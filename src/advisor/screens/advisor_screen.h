#pragma once

#include <QtCore/qstring.h>

#include <memory>
#include <optional>

#include "advisor/screens/advisor_content.h"
#include "kit/qt/list_model.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/words.h"

namespace tidewell {

/// Behind the Advisor: what the system's own tools can trim.
class AdvisorScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(bool isAllClear READ isAllClear NOTIFY changed)
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString noticeSymbol READ noticeSymbol NOTIFY changed)
    Q_PROPERTY(QString noticeTitle READ noticeTitle NOTIFY changed)
    Q_PROPERTY(QString noticeLine READ noticeLine NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* cards READ cards CONSTANT)
    Q_PROPERTY(QAbstractItemModel* runtimes READ runtimes CONSTANT)
    Q_PROPERTY(bool asksToDelete READ asksToDelete NOTIFY changed)
    Q_PROPERTY(QString questionText READ questionText NOTIFY changed)
    Q_PROPERTY(QString scanLabel READ scanLabel CONSTANT)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT)

 public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML knows enumerators by their capital
    enum Phase { Idle, Scanning, List };
    Q_ENUM(Phase)

    AdvisorScreen(std::shared_ptr<AdvisorViewModel> model, QObject* parent);

    Phase phase() const { return static_cast<Phase>(content_.phase); }
    bool isAllClear() const { return phase() == List && content_.notice.has_value(); }
    QString headline() const { return toText(content_.headline); }
    /// Empty when there is nothing to tell.
    QString message() const { return toText(content_.message.value_or("")); }
    QString noticeSymbol() const { return toText(notice().symbol); }
    QString noticeTitle() const { return toText(notice().title); }
    QString noticeLine() const { return toText(notice().line); }
    QAbstractItemModel* cards() { return &cards_; }
    /// The rows of the card that has rows.
    QAbstractItemModel* runtimes() { return &runtimes_; }
    bool asksToDelete() const { return pendingRuntimeDelete_.has_value(); }
    QString questionText() const { return toText(question_.message); }
    QString scanLabel() const { return toText(wordsOf(model_->system).checkMachine); }
    QString subtitle() const { return toText(wordsOf(model_->system).advisorTools); }

    /// To be called when the screen comes into sight, for its dates are told from now; a question
    /// that was left open is withdrawn. Has its effect in a later turn.
    Q_INVOKABLE void open();
    Q_INVOKABLE void scan();
    Q_INVOKABLE void dismissMessage() { model_->lastMessage = std::nullopt; }
    /// What the button of a row of `cards` says.
    Q_INVOKABLE void act(int row);
    /// Asks whether the runtime in a row of `runtimes` is to go.
    Q_INVOKABLE void askToDelete(int row);
    // The answers to that question.
    Q_INVOKABLE void confirmDelete();
    Q_INVOKABLE void cancelDelete();

 private:
    void update() override;
    AdvisorNotice notice() const { return content_.notice.value_or(AdvisorNotice{}); }

    const std::shared_ptr<AdvisorViewModel> model_;
    std::optional<SimRuntime> pendingRuntimeDelete_;
    RuntimeDeleteConfirmation question_;  ///< the last one: it stays legible while it goes
    std::string copied_;                  ///< the finding whose command was copied last
    AdvisorContent content_;
    ListModel<AdvisorCard> cards_;
    ListModel<AdvisorRuntimeRow> runtimes_;
};

}  // namespace tidewell
