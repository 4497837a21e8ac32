#include "shell/screens/home_screen.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/dates.h"

namespace tidewell {

namespace {

using Cell = StatCellContent;
using Tool = HomeToolContent;

std::string cellKey(const Cell& cell) {
    return std::string(cell.label);
}

std::vector<ListModel<Cell>::Role> cellRoles() {
    return {
        {"label", [](const Cell& cell) { return toText(cell.label); }},
        {"value", [](const Cell& cell) { return toText(cell.value); }},
    };
}

std::string toolKey(const Tool& tool) {
    return std::string(tool.title);
}

std::vector<ListModel<Tool>::Role> toolRoles() {
    return {
        {"symbol", [](const Tool& tool) { return toText(tool.symbol); }},
        {"title", [](const Tool& tool) { return toText(tool.title); }},
        {"lines", [](const Tool& tool) { return toText(tool.description); }},
        {"value", [](const Tool& tool) { return toText(tool.value); }},
        {"accent",
         [](const Tool& tool) {
             return QVariant::fromValue(PaletteValue(sectionPalette(accent(tool.section))));
         }},
    };
}

Color between(const Color& from, const Color& to, double share) {
    return {.red = from.red + (to.red - from.red) * share,
            .green = from.green + (to.green - from.green) * share,
            .blue = from.blue + (to.blue - from.blue) * share};
}

/// A colour with the shades that go with it.
SectionPalette shadesOf(const Color& color) {
    return {.primary = color,
            .soft = between(color, whiteAt(1), 0.42),
            .deep = between(color, Color{}, 0.48)};
}

}  // namespace

HomeScreen::HomeScreen(std::shared_ptr<ContentView> view, QObject* parent)
    : Screen(parent),
      view_(std::move(view)),
      stats_(cellKey, cellRoles(), this),
      tools_(toolKey, toolRoles(), this) {
    observe(view_->smartScan->willChange);
    observe(view_->theme->willChange);
    observe(view_->permissions->willChange);
    observe(view_->sums->willChange);
    update();
}

PaletteValue HomeScreen::healthShades() const {
    return PaletteValue(shadesOf(view_->theme->palette().healthRGB));
}

void HomeScreen::open() {
    QMetaObject::invokeMethod(this, &HomeScreen::refresh, Qt::QueuedConnection);
}

void HomeScreen::openTool(int row) {
    if (const auto* tool = tools_.at(row)) view_->mode = tool->section;
}

void HomeScreen::update() {
    const HomeReadings readings{
        .system = view_->host().system,
        .freeBytes = view_->theme->freeBytes(),
        .volumeBytes = view_->theme->totalBytes(),
        .asksForAccess = view_->permissions->asksForAccess(),
        .totalFreedBytes = view_->sums->totalFreedBytes(),
        .lastCleanupAt = view_->sums->lastCleanupAt(),
    };
    content_ = homeContent(*view_->smartScan, readings, now());
    stats_.set(content_.stats);
    tools_.set({content_.tools.begin(), content_.tools.end()});
}

}  // namespace tidewell
