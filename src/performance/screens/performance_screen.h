#pragma once

#include <QtCore/qstring.h>

#include <memory>

#include "kit/qt/list_model.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/words.h"
#include "performance/screens/performance_content.h"
#include "platform/workspace.h"

namespace tidewell {

/// Behind the Performance tool: what uses memory, and what starts by itself.
class PerformanceScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(bool showsMemory READ showsMemory NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* panels READ panels CONSTANT)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(double memoryFraction READ memoryFraction NOTIFY changed)
    Q_PROPERTY(QString memoryPercent READ memoryPercent NOTIFY changed)
    Q_PROPERTY(QString memoryLine READ memoryLine NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* apps READ apps CONSTANT)
    Q_PROPERTY(QAbstractItemModel* loginItems READ loginItems CONSTANT)
    Q_PROPERTY(QString memoryFootnote READ memoryFootnote CONSTANT)
    Q_PROPERTY(QString appsHeading READ appsHeading CONSTANT)
    Q_PROPERTY(QString startupExplanation READ startupExplanation CONSTANT)
    Q_PROPERTY(QString startupHeading READ startupHeading CONSTANT)
    Q_PROPERTY(QString openSettingsLabel READ openSettingsLabel CONSTANT)

 public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML knows enumerators by their capital
    enum Phase { Idle, Scanning, List };
    Q_ENUM(Phase)

    PerformanceScreen(std::shared_ptr<PerformanceViewModel> model, Workspace workspace,
                      QObject* parent);

    Phase phase() const { return static_cast<Phase>(content_.phase); }
    bool showsMemory() const { return panel_ == PerformancePanel::memory; }
    QString subtitle() const { return toText(content_.subtitle); }
    QAbstractItemModel* panels() { return &panels_; }
    /// Empty when there is nothing to tell.
    QString message() const { return toText(content_.message.value_or("")); }
    double memoryFraction() const { return content_.memoryFraction; }
    QString memoryPercent() const { return toText(content_.memoryPercent); }
    QString memoryLine() const { return toText(content_.memoryLine); }
    QAbstractItemModel* apps() { return &apps_; }
    QAbstractItemModel* loginItems() { return &loginItems_; }
    QString memoryFootnote() const { return toText(wordsOf(model_->system).memoryFootnote); }
    static QString appsHeading() { return toText(mostMemoryHeading); }
    QString startupExplanation() const {
        return toText(wordsOf(model_->system).startupExplanation);
    }
    static QString startupHeading() { return toText(tidewell::startupHeading); }
    QString openSettingsLabel() const { return toText(wordsOf(model_->system).openLoginSettings); }

    /// To be called when the screen comes into sight: it begins with the first panel.
    Q_INVOKABLE void open() { setPanel(PerformancePanel::memory); }
    Q_INVOKABLE void scan();
    /// For a row of `panels`.
    Q_INVOKABLE void choosePanel(int row);
    Q_INVOKABLE void dismissMessage() { model_->lastMessage = std::nullopt; }
    /// Asks the application of a row of `apps` to quit, unless its answer is awaited.
    Q_INVOKABLE void quit(int row);
    Q_INVOKABLE void openLoginSettings() const;
    /// For a row of `loginItems`.
    Q_INVOKABLE void reveal(int row) const;

 private:
    void update() override;
    void setPanel(PerformancePanel panel);

    const std::shared_ptr<PerformanceViewModel> model_;
    const Workspace workspace_;
    PerformancePanel panel_ = PerformancePanel::memory;
    PerformanceContent content_;
    ListModel<PanelChoice> panels_;
    ListModel<AppMemoryRowContent> apps_;
    ListModel<LoginItemRowContent> loginItems_;
};

}  // namespace tidewell
