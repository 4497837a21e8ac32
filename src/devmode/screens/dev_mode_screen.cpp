#include "devmode/screens/dev_mode_screen.h"

#include <utility>

#include "async/executor.h"
#include "kit/byte_text.h"

namespace tidewell {

namespace {

std::string rowKey(const DevRailRow& row) {
    return row.id;
}

std::vector<ListModel<DevRailRow>::Role> rowRoles() {
    using Row = DevRailRow;
    return {
        {"symbol", [](const Row& row) { return toText(row.symbol); }},
        {"title", [](const Row& row) { return toText(row.title); }},
        {"line", [](const Row& row) { return toText(row.line); }},
        {"isViewing", [](const Row& row) { return row.isViewing; }},
    };
}

std::string storeKey(const AIModelStore& store) {
    return store.id;
}

std::vector<ListModel<AIModelStore>::Role> storeRoles() {
    using Store = AIModelStore;
    return {
        {"title", [](const Store& store) { return toText(store.tool); }},
        {"size", [](const Store& store) { return toText(byteText(store.sizeBytes)); }},
        {"note", [](const Store& store) { return toText(store.note); }},
    };
}

}  // namespace

DevModeScreen::DevModeScreen(std::shared_ptr<DevModeViewModel> model, Workspace workspace,
                             QObject* parent)
    : Screen(parent),
      model_(std::move(model)),
      workspace_(std::move(workspace)),
      rail_(rowKey, rowRoles(), this),
      chips_(itemChipKey, itemChipRoles(), this),
      models_(storeKey, storeRoles(), this) {
    observe(model_->willChange);
    update();
}

void DevModeScreen::update() {
    // Nothing of the list is seen elsewhere, and it may be long.
    if (phase() != Review) return;
    groups_ = devRail(model_->items(), model_->models());
    inView_ = devGroupInView(groups_, viewing_);
    review_ = devReviewContent(*model_);

    std::vector<DevRailRow> rows;
    rows.reserve(groups_.size());
    for (const auto& group : groups_)
        rows.push_back({.id = group.id,
                        .symbol = group.symbol,
                        .title = group.label,
                        .line = group.line,
                        .isViewing = &group == viewing()});
    rail_.set(std::move(rows));

    std::vector<ItemChipContent> chips;
    if (viewing())
        for (const auto& item : viewing()->items) chips.push_back(itemChip(item, devReviewTag));
    chips_.set(std::move(chips));
    models_.set(model_->models());
}

QString DevModeScreen::failureNote() const {
    return toText(
        tidewell::failureNote(model_->failedTitles(), model_->servedSystem()).value_or(""));
}

DevModeViewModel::TargetIDs DevModeScreen::idsInView() const {
    DevModeViewModel::TargetIDs ids;
    for (const auto& chip : chips_.values()) ids.insert(chip.id);
    return ids;
}

void DevModeScreen::open() {
    viewing_.reset();
    QMetaObject::invokeMethod(this, &DevModeScreen::refresh, Qt::QueuedConnection);
}

void DevModeScreen::scan() {
    spawn(model_, &DevModeViewModel::scan);
}

void DevModeScreen::viewGroup(int row) {
    if (const auto* chosen = rail_.at(row)) viewing_ = chosen->id;
    refresh();
}

void DevModeScreen::toggleChip(int row) {
    const auto* chip = chips_.at(row);
    const auto* item = chip ? findItem(model_->items(), chip->id) : nullptr;
    if (item) model_->binding(*item).set(tickOf(!item->isSelected));
}

void DevModeScreen::reveal(int row) {
    if (const auto* store = models_.at(row)) workspace_.reveal(store->path());
}

void DevModeScreen::cleanUp() {
    spawn(model_, &DevModeViewModel::clean);
}

}  // namespace tidewell
