#include "cleanup/screens/review_screen.h"

#include <utility>

namespace tidewell {

namespace {

std::string categoryKey(const CategoryRowContent& row) {
    return std::string(row.title);
}

std::vector<ListModel<CategoryRowContent>::Role> categoryRoles() {
    using Row = CategoryRowContent;
    return {
        {"symbol", [](const Row& row) { return toText(row.symbol); }},
        {"title", [](const Row& row) { return toText(row.title); }},
        {"line", [](const Row& row) { return toText(row.line); }},
        {"mark", [](const Row& row) { return static_cast<int>(row.mark); }},
        {"isViewing", [](const Row& row) { return row.isViewing; }},
    };
}

}  // namespace

ReviewScreen::ReviewScreen(std::shared_ptr<CleanupViewModel> model,
                           std::shared_ptr<ThemeEngine> theme, QObject* parent)
    : Screen(parent),
      model_(std::move(model)),
      theme_(std::move(theme)),
      categories_(categoryKey, categoryRoles(), this),
      chips_(itemChipKey, itemChipRoles(), this) {
    observe(model_->willChange);
    observe(theme_->willChange);
    update();
}

void ReviewScreen::update() {
    // Nothing of it is seen elsewhere, and working out thousands of rows at every step of a clean
    // would be felt.
    if (model_->phase() != CleanupViewModel::Phase::review) return;
    content_ = reviewContent(*model_, viewing_, theme_->freeBytes());
    categories_.set(content_.categories);
    chips_.set(content_.chips);
}

void ReviewScreen::setViewing(std::optional<CleanupCategory> category) {
    viewing_ = category;
    refresh();
}

QString ReviewScreen::viewingTitle() const {
    return content_.viewing ? toText(title(*content_.viewing)) : QString();
}

QString ReviewScreen::viewingSymbol() const {
    return content_.viewing ? toText(symbol(*content_.viewing)) : QString();
}

void ReviewScreen::selectSmartInView() {
    if (content_.viewing) model_->selectSafeOnlyIn(*content_.viewing);
}

void ReviewScreen::selectAllInView() {
    if (content_.viewing) model_->setCategory(*content_.viewing, Tick::on);
}

void ReviewScreen::selectNoneInView() {
    if (content_.viewing) model_->setCategory(*content_.viewing, Tick::off);
}

void ReviewScreen::toggleCategory(int row) {
    const auto* chosen = categories_.at(row);
    if (!chosen) return;
    const auto category = chosen->category;
    model_->setCategory(
        category, toggledCategory(model_->selectedCountIn(category), model_->countIn(category)));
}

void ReviewScreen::viewCategory(int row) {
    if (const auto* chosen = categories_.at(row)) setViewing(chosen->category);
}

void ReviewScreen::toggleChip(int row) {
    const auto* chip = chips_.at(row);
    const auto* item = chip ? findItem(model_->items(), chip->id) : nullptr;
    if (item) model_->selectionBinding(*item).set(tickOf(!item->isSelected));
}

void ReviewScreen::cleanUp() {
    spawn(model_, &CleanupViewModel::cleanSelected);
}

void ReviewScreen::scanAgain() {
    spawn(model_, &CleanupViewModel::startScan);
}

}  // namespace tidewell
