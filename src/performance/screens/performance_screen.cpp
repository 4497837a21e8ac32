#include "performance/screens/performance_screen.h"

#include <string>
#include <utility>
#include <vector>

#include "kit/qt/bundle_icons.h"

namespace tidewell {

namespace {

using AppRow = AppMemoryRowContent;
using ItemRow = LoginItemRowContent;

static_assert(PerformanceScreen::Idle == static_cast<int>(PerformanceViewModel::Phase::idle));
static_assert(PerformanceScreen::Scanning ==
              static_cast<int>(PerformanceViewModel::Phase::scanning));
static_assert(PerformanceScreen::List == static_cast<int>(PerformanceViewModel::Phase::list));

std::string panelKey(const PanelChoice& choice) {
    return std::string(choice.label);
}

std::vector<ListModel<PanelChoice>::Role> panelRoles() {
    return {
        {"label", [](const PanelChoice& choice) { return toText(choice.label); }},
        {"isChosen", [](const PanelChoice& choice) { return choice.isChosen; }},
    };
}

/// Empty for an application that has neither a bundle nor a picture.
QString iconAddress(const RunningApp& app) {
    const auto place = app.url.value_or(app.iconFile);
    return place.empty() ? QString() : BundleIcons::address(place);
}

std::string appKey(const AppRow& row) {
    return std::to_string(row.app.id);
}

std::vector<ListModel<AppRow>::Role> appRoles() {
    return {
        {"name", [](const AppRow& row) { return toText(row.app.name); }},
        {"icon", [](const AppRow& row) { return iconAddress(row.app); }},
        {"fraction", [](const AppRow& row) { return row.fraction; }},
        {"size", [](const AppRow& row) { return toText(row.size); }},
        {"isBusy", [](const AppRow& row) { return row.isBusy; }},
    };
}

std::string itemKey(const ItemRow& row) {
    return row.id;
}

std::vector<ListModel<ItemRow>::Role> itemRoles() {
    return {
        {"symbol", [](const ItemRow& row) { return toText(row.symbol); }},
        {"label", [](const ItemRow& row) { return toText(row.label); }},
        {"program", [](const ItemRow& row) { return toText(row.program); }},
        {"scope", [](const ItemRow& row) { return toText(row.scope); }},
    };
}

}  // namespace

PerformanceScreen::PerformanceScreen(std::shared_ptr<PerformanceViewModel> model,
                                     Workspace workspace, QObject* parent)
    : Screen(parent),
      model_(std::move(model)),
      workspace_(std::move(workspace)),
      panels_(panelKey, panelRoles(), this),
      apps_(appKey, appRoles(), this),
      loginItems_(itemKey, itemRoles(), this) {
    observe(model_->willChange);
    update();
}

void PerformanceScreen::update() {
    content_ = performanceContent(*model_, panel_);
    panels_.set(content_.panels);
    apps_.set(content_.apps);
    loginItems_.set(content_.loginItems);
}

void PerformanceScreen::setPanel(PerformancePanel panel) {
    panel_ = panel;
    refresh();
}

void PerformanceScreen::scan() {
    spawn(model_, &PerformanceViewModel::scan);
}

void PerformanceScreen::choosePanel(int row) {
    if (const auto* choice = panels_.at(row)) setPanel(choice->panel);
}

void PerformanceScreen::quit(int row) {
    const auto* chosen = apps_.atRest(row);
    if (chosen && !chosen->isBusy) model_->quit(chosen->app);
}

void PerformanceScreen::openLoginSettings() const {
    workspace_.openUrl(std::string(wordsOf(model_->system).loginSettingsUrl));
}

void PerformanceScreen::reveal(int row) const {
    if (const auto* item = loginItems_.at(row)) workspace_.reveal(item->plistURL);
}

}  // namespace tidewell
