#include "shell/screens/menu_bar_screen.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/volume.h"

namespace tidewell {

namespace {

std::string cardKey(Mode section) {
    return std::string(title(section));
}

std::vector<ListModel<Mode>::Role> cardRoles() {
    return {
        {"title", [](Mode section) { return toText(title(section)); }},
        {"symbol", [](Mode section) { return toText(symbol(section)); }},
        {"accent",
         [](Mode section) {
             return QVariant::fromValue(PaletteValue(sectionPalette(accent(section))));
         }},
    };
}

MenuBarReadings readDisk(const std::string& home) {
    const auto capacity = volumeCapacity(home);
    if (!capacity) return {};
    return {.free = capacity->available, .total = capacity->total};
}

}  // namespace

MenuBarScreen::MenuBarScreen(Application& application, std::function<void()> close, QObject* parent)
    : Screen(parent),
      application_(application),
      close_(std::move(close)),
      readings_(readDisk(application.host.home)),
      cards_(cardKey, cardRoles(), this) {
    cards_.set({quickCards.begin(), quickCards.end()});
    observe(application_.sums->willChange);
    update();
}

void MenuBarScreen::update() {
    readings_.system = application_.host.system;
    readings_.totalFreed = application_.sums->totalFreedBytes();
    content_ = menuBarContent(readings_);
}

void MenuBarScreen::openCard(int row) {
    const auto section = quickCards.at(static_cast<std::size_t>(row));
    close_();
    application_.bridge.openSection(std::string(tidewell::title(section)));
}

void MenuBarScreen::scan() {
    close_();
    application_.bridge.requestScan();
}

void MenuBarScreen::openApp() {
    close_();
    application_.bridge.showWindow();
}

}  // namespace tidewell
