#include "shell/screens/window_screen.h"

#include <utility>

namespace tidewell {

namespace {

using Row = SidebarRowContent;

std::string rowKey(const Row& row) {
    return std::string(row.label);
}

std::vector<ListModel<Row>::Role> rowRoles() {
    return {
        {"symbol", [](const Row& row) { return toText(row.symbol); }},
        {"title", [](const Row& row) { return toText(row.label); }},
        {"isActive", [](const Row& row) { return row.isActive; }},
        {"accent",
         [](const Row& row) {
             return QVariant::fromValue(PaletteValue(sectionPalette(accent(row.mode))));
         }},
    };
}

}  // namespace

WindowScreen::WindowScreen(std::shared_ptr<ContentView> view, const QString& filmFolder)
    : Screen(nullptr),
      view_(std::move(view)),
      rows_(rowKey, rowRoles(), this),
      onboarding_(view_, this),
      intro_(view_, filmFolder, this),
      about_(view_, this),
      home_(view_, this),
      smartScan_(view_, this),
      scan_(view_->cleanupModel, view_->sums, this),
      review_(view_->cleanupModel, view_->theme, this),
      cleaned_(view_->cleanupModel, this),
      performance_(view_->performanceModel, view_->workspace(), this),
      apps_(view_->appsModel, this),
      devMode_(view_->devModeModel, view_->workspace(), this),
      deepScan_(view_->deepScanModel, view_->diskMapModel, view_->workspace(), this),
      advisor_(view_->advisorModel, this) {
    observe(view_->willChange);
    observe(view_->cleanupModel->willChange);
    observe(view_->permissions->willChange);
    connect(deepScan_.map(), &DiskMapScreen::wantsTool, this, [this](RowTool tool) {
        view_->mode = tool == RowTool::devMode ? Mode::devMode : Mode::clean;
    });
    update();
}

QString WindowScreen::accessSymbol() const {
    return toText(hasFullDiskAccess() ? accessGrantedSymbol : tidewell::accessSymbol);
}

void WindowScreen::openRow(int row) {
    if (const auto* chosen = rows_.at(row)) view_->mode = chosen->mode;
}

void WindowScreen::update() {
    content_ = windowContent(*view_);
    rows_.set(content_.rows);
}

}  // namespace tidewell
