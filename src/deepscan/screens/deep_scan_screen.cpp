#include "deepscan/screens/deep_scan_screen.h"

#include <QtCore/qtimer.h>
#include <QtGui/qclipboard.h>
#include <QtGui/qguiapplication.h>

#include <utility>

#include "async/executor.h"

namespace tidewell {

namespace {

std::string rowKey(const RiskRow& row) {
    return std::string(row.look.title);
}

std::vector<ListModel<RiskRow>::Role> rowRoles() {
    using Row = RiskRow;
    return {
        {"symbol", [](const Row& row) { return toText(row.look.symbol); }},
        {"title", [](const Row& row) { return toText(row.look.title); }},
        {"line", [](const Row& row) { return toText(row.line); }},
        {"isViewing", [](const Row& row) { return row.isViewing; }},
        {"symbolColor", [](const Row& row) { return toQColor(row.look.iconColor); }},
        {"symbolBackground", [](const Row& row) { return toQColor(row.look.iconBackground); }},
    };
}

std::string faceKey(const FaceChoice& choice) {
    return std::string(choice.label);
}

std::vector<ListModel<FaceChoice>::Role> faceRoles() {
    return {{"label", [](const FaceChoice& choice) { return toText(choice.label); }},
            {"isChosen", [](const FaceChoice& choice) { return choice.isChosen; }}};
}

std::string cardKey(const BigItemCard& card) {
    return card.item.id;
}

std::vector<ListModel<BigItemCard>::Role> cardRoles() {
    using Card = BigItemCard;
    const auto textOf = [](auto button, auto field) {
        return [button, field](const Card& card) {
            return card.*button ? toText((*(card.*button)).*field) : QString();
        };
    };
    return {
        {"symbol", [](const Card& card) { return toText(card.symbol); }},
        {"title", [](const Card& card) { return toText(card.item.name); }},
        {"place", [](const Card& card) { return toText(card.item.location); }},
        {"size", [](const Card& card) { return toText(card.size); }},
        {"badge", [](const Card& card) { return toText(card.badge); }},
        {"badgeColor", [](const Card& card) { return toQColor(card.badgeColor); }},
        {"note", [](const Card& card) { return toText(card.note); }},
        {"revealSymbol", [](const Card& card) { return toText(card.revealSymbol); }},
        {"revealHelp", [](const Card& card) { return toText(card.revealHelp); }},
        {"trashHelp", [](const Card& card) { return toText(card.trashHelp.value_or("")); }},
        {"commandLabel", textOf(&Card::copyCommand, &CopyCommandButton::label)},
        {"commandHelp", textOf(&Card::copyCommand, &CopyCommandButton::help)},
        {"putBackLabel", textOf(&Card::putBack, &PutBackButton::label)},
        {"putBackHelp", textOf(&Card::putBack, &PutBackButton::help)},
    };
}

}  // namespace

DeepScanScreen::DeepScanScreen(std::shared_ptr<DeepScanViewModel> model,
                               std::shared_ptr<DiskMapViewModel> mapModel,
                               const Workspace& workspace, QObject* parent)
    : Screen(parent),
      model_(std::move(model)),
      workspace_(workspace),
      rail_(rowKey, rowRoles(), this),
      cards_(cardKey, cardRoles(), this),
      faces_(faceKey, faceRoles(), this),
      map_(std::move(mapModel), workspace, this) {
    observe(model_->willChange);
    update();
}

void DeepScanScreen::update() {
    content_ = deepScanContent(*model_, state_);
    if (content_.banner) banner_ = *content_.banner;
    if (content_.confirmation) question_ = *content_.confirmation;
    faces_.set(faceChoices(state_.face));
    rail_.set(content_.rail);
    cards_.set(content_.cards);
}

QString DeepScanScreen::bucketTitle() const {
    for (const auto& row : content_.rail)
        if (row.isViewing) return toText(row.look.title);
    return {};
}

void DeepScanScreen::open() {
    state_ = {};
    QMetaObject::invokeMethod(this, &DeepScanScreen::refresh, Qt::QueuedConnection);
}

void DeepScanScreen::scan() {
    spawn(model_, &DeepScanViewModel::scan);
}

void DeepScanScreen::chooseFace(int row) {
    const auto* chosen = faces_.at(row);
    if (!chosen) return;
    state_.face = chosen->face;
    refresh();
    if (showsMap()) map_.open();
}

void DeepScanScreen::stopMap() {
    map_.stop();
    if (map_.hasPicture()) return;
    state_.face = DeepScanFace::list;
    refresh();
}

void DeepScanScreen::viewBucket(int row) {
    if (const auto* chosen = rail_.at(row)) state_.viewingBucket = chosen->bucket;
    refresh();
}

void DeepScanScreen::reveal(int row) {
    if (const auto* card = cards_.at(row)) workspace_.reveal(card->item.path());
}

void DeepScanScreen::copyCommand(int row) {
    const auto* card = cards_.at(row);
    if (!card || !card->copyCommand) return;
    QGuiApplication::clipboard()->setText(toText(card->copyCommand->command));
    const auto id = card->item.id;
    state_.copiedItems.insert(id);
    QTimer::singleShot(copiedDuration, this, [this, id] {
        state_.copiedItems.erase(id);
        refresh();
    });
    refresh();
}

void DeepScanScreen::trash(int row) {
    if (const auto* card = cards_.atRest(row)) wishToTrash(card->item);
}

void DeepScanScreen::trashFromMap() {
    if (auto item = map_.itemAtRest()) wishToTrash(*std::move(item));
}

void DeepScanScreen::wishToTrash(BigItem item) {
    if (!asksBeforeTrashing(item.kind)) return move(std::move(item));
    state_.pendingTrash = std::move(item);
    refresh();
}

void DeepScanScreen::putBack(int row) {
    const auto* card = cards_.atRest(row);
    if (card && card->putBack) spawn(model_, &DeepScanViewModel::putBack, card->putBack->item);
}

void DeepScanScreen::undo() {
    if (auto item = model_->undoable())
        spawn(model_, &DeepScanViewModel::putBack, std::move(*item));
}

void DeepScanScreen::confirmTrash() {
    if (const auto item = std::exchange(state_.pendingTrash, std::nullopt)) move(*item);
    refresh();
}

void DeepScanScreen::cancelTrash() {
    state_.pendingTrash.reset();
    refresh();
}

void DeepScanScreen::move(BigItem item) {
    spawn(model_, &DeepScanViewModel::trash, std::move(item));
}

}  // namespace tidewell
