#pragma once

#include <QtCore/qstring.h>

#include <memory>
#include <optional>
#include <string>

#include "cleanup/screens/item_chips_screen.h"
#include "cleanup/screens/scan_content.h"
#include "devmode/screens/dev_mode_content.h"
#include "kit/qt/list_model.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/words.h"
#include "platform/workspace.h"

namespace tidewell {

/// A group of the rail, as its row shows it.
struct DevRailRow {
    std::string id;
    std::string symbol;
    std::string title;
    std::string line;
    bool isViewing;

    bool operator==(const DevRailRow&) const = default;
};

/// Behind Dev Mode: what development leaves behind, by technology, and model stores that are only
/// shown.
class DevModeScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(double scanProgress READ scanProgress NOTIFY changed)
    Q_PROPERTY(double cleanProgress READ cleanProgress NOTIFY changed)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QString leftOutNote READ leftOutNote NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* rail READ rail CONSTANT)
    Q_PROPERTY(QString viewingTitle READ viewingTitle NOTIFY changed)
    Q_PROPERTY(QString viewingSymbol READ viewingSymbol NOTIFY changed)
    Q_PROPERTY(bool isViewingModels READ isViewingModels NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* chips READ chips CONSTANT)
    Q_PROPERTY(QAbstractItemModel* models READ models CONSTANT)
    Q_PROPERTY(QString selectedSize READ selectedSize NOTIFY changed)
    Q_PROPERTY(QString pickedLine READ pickedLine NOTIFY changed)
    Q_PROPERTY(bool canClean READ canClean NOTIFY changed)
    Q_PROPERTY(QString doneTitle READ doneTitle NOTIFY changed)
    Q_PROPERTY(QString failureNote READ failureNote NOTIFY changed)
    Q_PROPERTY(QString scanningLine READ scanningLine CONSTANT)
    Q_PROPERTY(QString emptyTitle READ emptyTitle CONSTANT)
    Q_PROPERTY(QString emptyLine READ emptyLine CONSTANT)
    Q_PROPERTY(QString modelsLine READ modelsLine CONSTANT)
    Q_PROPERTY(QString failureTitle READ failureTitle CONSTANT)

 public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML knows enumerators by their capital
    enum Phase { Idle, Scanning, Review, Cleaning, Done };
    Q_ENUM(Phase)

    DevModeScreen(std::shared_ptr<DevModeViewModel> model, Workspace workspace, QObject* parent);

    Phase phase() const { return static_cast<Phase>(model_->phase()); }
    double scanProgress() const { return model_->scanProgress(); }
    double cleanProgress() const { return model_->cleanProgress(); }
    bool isEmpty() const { return groups_.empty(); }
    /// Empty where nothing was left out.
    QString leftOutNote() const { return toText(review_.leftOutNote.value_or("")); }
    QString headline() const { return toText(review_.headline); }
    QAbstractItemModel* rail() { return &rail_; }
    QString viewingTitle() const { return viewing() ? toText(viewing()->label) : QString(); }
    QString viewingSymbol() const { return viewing() ? toText(viewing()->symbol) : QString(); }
    bool isViewingModels() const { return viewing() && viewing()->isModels; }
    QAbstractItemModel* chips() { return &chips_; }
    QAbstractItemModel* models() { return &models_; }
    QString selectedSize() const { return toText(review_.selectedSize); }
    QString pickedLine() const { return toText(review_.pickedLine); }
    bool canClean() const { return review_.canClean; }
    QString doneTitle() const { return toText(devDoneTitle(*model_)); }
    QString failureNote() const;
    static QString scanningLine() { return toText(devScanningLine); }
    static QString emptyTitle() { return toText(nothingToCleanTitle); }
    QString emptyLine() const { return toText(wordsOf(model_->servedSystem()).nothingToClean); }
    static QString modelsLine() { return toText(devModelsLine); }
    static QString failureTitle() { return toText(notCleanedTitle); }

    /// To be called when the screen comes into sight: it begins with the first group. Has its
    /// effect in a later turn.
    Q_INVOKABLE void open();
    Q_INVOKABLE void scan();
    Q_INVOKABLE void selectSafeOnly() { model_->selectSafeOnly(); }
    Q_INVOKABLE void selectAll() { model_->setAllSelected(Tick::on); }
    Q_INVOKABLE void selectNone() { model_->setAllSelected(Tick::off); }
    // For the group in view.
    Q_INVOKABLE void selectSmartInView() { model_->selectSafeOnly(idsInView()); }
    Q_INVOKABLE void selectAllInView() { model_->setSelected(Tick::on, idsInView()); }
    Q_INVOKABLE void selectNoneInView() { model_->setSelected(Tick::off, idsInView()); }
    /// For a row of `rail`.
    Q_INVOKABLE void viewGroup(int row);
    /// Flips a row of `chips`.
    Q_INVOKABLE void toggleChip(int row);
    /// For a row of `models`.
    Q_INVOKABLE void reveal(int row);
    Q_INVOKABLE void cleanUp();
    Q_INVOKABLE void finish() { model_->reset(); }

 private:
    void update() override;
    const RailGroup* viewing() const { return inView_ ? &groups_[*inView_] : nullptr; }
    DevModeViewModel::TargetIDs idsInView() const;

    const std::shared_ptr<DevModeViewModel> model_;
    const Workspace workspace_;
    std::optional<std::string> viewing_;  ///< as the user chose it
    std::vector<RailGroup> groups_;
    std::optional<std::size_t> inView_;  ///< of `groups_`
    DevReviewContent review_;
    ListModel<DevRailRow> rail_;
    ListModel<ItemChipContent> chips_;
    ListModel<AIModelStore> models_;
};

}  // namespace tidewell
