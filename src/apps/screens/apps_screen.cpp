#include "apps/screens/apps_screen.h"

#include <QtGui/qclipboard.h>
#include <QtGui/qguiapplication.h>

#include <utility>

#include "async/executor.h"
#include "kit/qt/bundle_icons.h"
#include "platform/dates.h"

namespace tidewell {

namespace {

std::string choiceKey(const SortChoice& choice) {
    return std::string(choice.label);
}

std::vector<ListModel<SortChoice>::Role> choiceRoles() {
    using Choice = SortChoice;
    return {
        {"label", [](const Choice& choice) { return toText(choice.label); }},
        {"isChosen", [](const Choice& choice) { return choice.isChosen; }},
    };
}

/// What its icon is read from: the picture itself, or the bundle that holds it.
const std::string& pictureOf(const InstalledApp& app) {
    return app.kind == AppKind::bundle ? app.url : app.iconFile;
}

std::string cardKey(const AppCardContent& card) {
    return card.app.url;
}

std::vector<ListModel<AppCardContent>::Role> cardRoles() {
    using Card = AppCardContent;
    return {
        {"icon", [](const Card& card) { return BundleIcons::address(pictureOf(card.app)); }},
        {"title", [](const Card& card) { return toText(card.app.name); }},
        {"line", [](const Card& card) { return toText(card.line); }},
        {"size", [](const Card& card) { return toText(card.size); }},
        {"version", [](const Card& card) { return toText(card.footnote); }},
        {"mark", [](const Card& card) { return toText(label(card.mark)); }},
        {"isUnused", [](const Card& card) { return card.mark == AppMark::unused; }},
        {"trashHelp", [](const Card& card) { return toText(card.trashHelp); }},
    };
}

std::string rowKey(const UninstallRow& row) {
    return row.id;
}

std::vector<ListModel<UninstallRow>::Role> rowRoles() {
    using Row = UninstallRow;
    return {
        {"symbol", [](const Row& row) { return toText(row.symbol); }},
        {"title", [](const Row& row) { return toText(row.title); }},
        {"label", [](const Row& row) { return toText(row.label); }},
        {"size", [](const Row& row) { return toText(row.size); }},
        {"hasTick", [](const Row& row) { return row.hasTick; }},
        {"isOn", [](const Row& row) { return row.isOn; }},
    };
}

}  // namespace

AppsScreen::AppsScreen(std::shared_ptr<AppsViewModel> model, QObject* parent)
    : Screen(parent),
      model_(std::move(model)),
      sortChoices_(choiceKey, choiceRoles(), this),
      cards_(cardKey, cardRoles(), this),
      sheetRows_(rowKey, rowRoles(), this) {
    observe(model_->willChange);
    update();
}

void AppsScreen::update() {
    content_ = appsContent(*model_, now());
    if (content_.banner) banner_ = *content_.banner;
    if (content_.sheet) sheet_ = *content_.sheet;
    if (!content_.sheet) isCommandCopied_ = false;
    sortChoices_.set(content_.sortChoices);
    cards_.set(content_.cards);
    sheetRows_.set(sheet_.rows);
}

QString AppsScreen::noticeSymbol() const {
    return content_.notice ? toText(content_.notice->symbol) : QString();
}

QString AppsScreen::noticeLine() const {
    return content_.notice ? toText(content_.notice->line) : QString();
}

QString AppsScreen::noticeTitle() const {
    return content_.notice ? toText(content_.notice->title) : QString();
}

void AppsScreen::open() {
    QMetaObject::invokeMethod(this, &AppsScreen::refresh, Qt::QueuedConnection);
}

void AppsScreen::scan() {
    spawn(model_, &AppsViewModel::scan);
}

void AppsScreen::sortBy(int row) {
    if (const auto* choice = sortChoices_.at(row)) model_->sortOrder = choice->order;
}

void AppsScreen::prepareUninstall(int row) {
    if (const auto* card = cards_.at(row))
        spawn(model_, &AppsViewModel::prepareUninstall, card->app);
}

void AppsScreen::toggleLeftover(int row) {
    const auto* chosen = sheetRows_.at(row);
    if (chosen && chosen->hasTick) model_->toggleLeftover(chosen->id);
}

void AppsScreen::copyCommand() {
    QGuiApplication::clipboard()->setText(commandText());
    isCommandCopied_ = true;
    refresh();
}

void AppsScreen::confirmUninstall() {
    spawn(model_, &AppsViewModel::confirmUninstall);
}

void AppsScreen::putBack() {
    spawn(model_, &AppsViewModel::putBack);
}

}  // namespace tidewell
