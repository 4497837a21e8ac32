#include "advisor/screens/advisor_screen.h"

#include <QtGui/qclipboard.h>
#include <QtGui/qguiapplication.h>

#include <algorithm>
#include <utility>

#include "async/executor.h"
#include "platform/dates.h"

namespace tidewell {

namespace {

std::string cardKey(const AdvisorCard& card) {
    return card.id;
}

std::vector<ListModel<AdvisorCard>::Role> cardRoles() {
    using Card = AdvisorCard;
    return {
        {"symbol", [](const Card& card) { return toText(card.symbol); }},
        {"title", [](const Card& card) { return toText(card.title); }},
        {"body", [](const Card& card) { return toText(card.body); }},
        {"size", [](const Card& card) { return toText(card.size.value_or("")); }},
        {"command", [](const Card& card) { return toText(card.command); }},
        {"isWarning", [](const Card& card) { return card.isWarning; }},
        {"hasRuntimes", [](const Card& card) { return !card.runtimes.empty(); }},
        {"buttonLabel",
         [](const Card& card) { return card.button ? toText(card.button->label) : QString(); }},
        {"isBusy",
         [](const Card& card) {
             return card.button && card.button->state == AdvisorControlState::busy;
         }},
    };
}

std::string runtimeKey(const AdvisorRuntimeRow& row) {
    return row.id;
}

std::vector<ListModel<AdvisorRuntimeRow>::Role> runtimeRoles() {
    using Row = AdvisorRuntimeRow;
    return {
        {"title", [](const Row& row) { return toText(row.name); }},
        {"build", [](const Row& row) { return toText(row.build); }},
        {"size", [](const Row& row) { return toText(row.size); }},
        {"lastUsed", [](const Row& row) { return toText(row.lastUsed.value_or("")); }},
        {"usedBy", [](const Row& row) { return toText(row.usedBy); }},
        {"isBusy", [](const Row& row) { return row.deleteButton == AdvisorControlState::busy; }},
        {"isDeletable",
         [](const Row& row) { return row.deleteButton != AdvisorControlState::disabled; }},
    };
}

std::vector<AdvisorRuntimeRow> runtimesOf(const std::vector<AdvisorCard>& cards) {
    std::vector<AdvisorRuntimeRow> rows;
    for (const auto& card : cards) std::ranges::copy(card.runtimes, std::back_inserter(rows));
    return rows;
}

}  // namespace

AdvisorScreen::AdvisorScreen(std::shared_ptr<AdvisorViewModel> model, QObject* parent)
    : Screen(parent),
      model_(std::move(model)),
      cards_(cardKey, cardRoles(), this),
      runtimes_(runtimeKey, runtimeRoles(), this) {
    observe(model_->willChange);
    update();
}

void AdvisorScreen::update() {
    content_ = advisorContent(*model_, now(), copied_);
    if (pendingRuntimeDelete_) question_ = runtimeDeleteConfirmation(*pendingRuntimeDelete_);
    cards_.set(content_.cards);
    runtimes_.set(runtimesOf(content_.cards));
}

void AdvisorScreen::open() {
    pendingRuntimeDelete_.reset();
    copied_.clear();
    QMetaObject::invokeMethod(this, &AdvisorScreen::refresh, Qt::QueuedConnection);
}

void AdvisorScreen::scan() {
    spawn(model_, &AdvisorViewModel::scan);
}

void AdvisorScreen::act(int row) {
    const auto* card = cards_.atRest(row);
    // A runtime's row is a part of the list, too.
    if (!card || !card->button || !runtimes_.isAtRest()) return;
    const auto id = card->id;
    if (card->button->action == FindingAction::run)
        return spawn(model_, &AdvisorViewModel::run, std::string(id));
    QGuiApplication::clipboard()->setText(toText(card->command));
    copied_ = id;
    refresh();
}

void AdvisorScreen::askToDelete(int row) {
    const auto* chosen = runtimes_.at(row);
    if (!chosen) return;
    const auto& runtimes = model_->findings().runtimes;
    const auto runtime = std::ranges::find(runtimes, chosen->id, &SimRuntime::id);
    if (runtime == runtimes.end()) return;
    pendingRuntimeDelete_ = *runtime;
    refresh();
}

void AdvisorScreen::confirmDelete() {
    if (auto runtime = std::exchange(pendingRuntimeDelete_, std::nullopt))
        spawn(model_, &AdvisorViewModel::deleteRuntime, std::move(*runtime));
    refresh();
}

void AdvisorScreen::cancelDelete() {
    pendingRuntimeDelete_.reset();
    refresh();
}

}  // namespace tidewell
