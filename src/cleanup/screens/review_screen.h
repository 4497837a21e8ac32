#pragma once

#include <QtCore/qstring.h>

#include <memory>
#include <optional>

#include "cleanup/screens/item_chips_screen.h"
#include "cleanup/screens/review_content.h"
#include "kit/qt/list_model.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/words.h"
#include "shell/theme_engine.h"

namespace tidewell {

/// Behind the Clean tool's review: what a scan found, and what of it goes.
class ReviewScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* categories READ categories CONSTANT)
    Q_PROPERTY(QAbstractItemModel* chips READ chips CONSTANT)
    Q_PROPERTY(QString viewingTitle READ viewingTitle NOTIFY changed)
    Q_PROPERTY(QString viewingSymbol READ viewingSymbol NOTIFY changed)
    Q_PROPERTY(bool canClean READ canClean NOTIFY changed)
    Q_PROPERTY(QString selectedSize READ selectedSize NOTIFY changed)
    Q_PROPERTY(QString pickedLine READ pickedLine NOTIFY changed)
    Q_PROPERTY(QString freeAfterLine READ freeAfterLine NOTIFY changed)
    Q_PROPERTY(QString leftOutNote READ leftOutNote NOTIFY changed)
    Q_PROPERTY(QString emptyTitle READ emptyTitle CONSTANT)
    Q_PROPERTY(QString emptyLine READ emptyLine CONSTANT)

 public:
    ReviewScreen(std::shared_ptr<CleanupViewModel> model, std::shared_ptr<ThemeEngine> theme,
                 QObject* parent);

    bool isEmpty() const { return content_.isEmpty; }
    QString headline() const { return toText(content_.headline); }
    QAbstractItemModel* categories() { return &categories_; }
    QAbstractItemModel* chips() { return &chips_; }
    QString viewingTitle() const;
    QString viewingSymbol() const;
    bool canClean() const { return content_.canClean; }
    /// Empty while nothing is picked.
    QString selectedSize() const { return toText(content_.selectedSize.value_or("")); }
    QString pickedLine() const { return toText(content_.pickedLine); }
    QString freeAfterLine() const { return toText(content_.freeAfterLine); }
    /// Empty where nothing was left out.
    QString leftOutNote() const { return toText(content_.leftOutNote.value_or("")); }
    static QString emptyTitle() { return toText(nothingToCleanTitle); }
    QString emptyLine() const { return toText(wordsOf(model_->servedSystem()).nothingToClean); }

    /// To be called when the screen comes into sight: it begins with the first category.
    Q_INVOKABLE void open() { setViewing(std::nullopt); }
    Q_INVOKABLE void selectSafeOnly() { model_->selectSafeOnly(); }
    Q_INVOKABLE void selectAll() { model_->selectAll(Tick::on); }
    Q_INVOKABLE void selectNone() { model_->selectAll(Tick::off); }
    // For the category in view.
    Q_INVOKABLE void selectSmartInView();
    Q_INVOKABLE void selectAllInView();
    Q_INVOKABLE void selectNoneInView();
    // For a row of `categories`, which is named by its place.
    Q_INVOKABLE void toggleCategory(int row);
    Q_INVOKABLE void viewCategory(int row);
    /// Flips a row of `chips`.
    Q_INVOKABLE void toggleChip(int row);
    Q_INVOKABLE void cleanUp();
    Q_INVOKABLE void back() { model_->reset(); }
    Q_INVOKABLE void scanAgain();

 private:
    void update() override;
    void setViewing(std::optional<CleanupCategory> category);

    const std::shared_ptr<CleanupViewModel> model_;
    const std::shared_ptr<ThemeEngine> theme_;
    std::optional<CleanupCategory> viewing_;  ///< as the user chose it
    ReviewContent content_;
    ListModel<CategoryRowContent> categories_;
    ListModel<ItemChipContent> chips_;
};

}  // namespace tidewell
