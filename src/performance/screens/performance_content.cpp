#include "performance/screens/performance_content.h"

#include <algorithm>
#include <iterator>

#include "kit/byte_text.h"
#include "kit/percent_text.h"

namespace tidewell {

namespace {

using Phase = PerformanceViewModel::Phase;

std::string memoryLine(const PerformanceViewModel& model) {
    return byteText(model.memoryUsed()) + " of " + byteText(model.memoryTotal());
}

std::string subtitle(const PerformanceViewModel& model) {
    switch (model.phase()) {
        case Phase::idle:
            return {};
        case Phase::scanning:
            return "Reading memory and startup items";
        case Phase::list:
            return memoryLine(model) + " memory in use";
    }
    return {};
}

std::vector<PanelChoice> panelChoices(PerformancePanel chosen) {
    const auto choice = [chosen](PerformancePanel panel, std::string_view label) {
        return PanelChoice{.panel = panel, .label = label, .isChosen = panel == chosen};
    };
    return {choice(PerformancePanel::memory, "Memory"), choice(PerformancePanel::login, "Startup")};
}

std::vector<AppMemoryRowContent> appRows(const PerformanceViewModel& model) {
    ByteCount most = 0;
    for (const auto& app : model.apps()) most = std::max(most, app.memoryBytes);
    std::vector<AppMemoryRowContent> rows;
    for (const auto& app : model.apps()) rows.push_back(appMemoryRow(app, most, model.busyPID()));
    return rows;
}

std::vector<LoginItemRowContent> loginRows(const std::vector<LoginItem>& items) {
    std::vector<LoginItemRowContent> rows;
    std::ranges::transform(items, std::back_inserter(rows), loginItemRow);
    return rows;
}

}  // namespace

AppMemoryRowContent appMemoryRow(const RunningApp& app, ByteCount maxBytes,
                                 std::optional<std::int32_t> busyPID) {
    const bool isKnown = app.memoryBytes >= 1;
    return {
        .app = app,
        .fraction =
            isKnown ? static_cast<double>(app.memoryBytes) / static_cast<double>(maxBytes) : 0,
        .size = isKnown ? byteText(app.memoryBytes) : "—",
        .isBusy = app.id == busyPID,
    };
}

LoginItemRowContent loginItemRow(const LoginItem& item) {
    return {
        .id = item.id,
        .symbol = item.scope == "System" ? "gearshape.2.fill" : "person.crop.circle",
        .label = item.label,
        .program = item.program,
        .scope = item.scope,
        .plistURL = item.plistURL,
    };
}

PerformanceContent performanceContent(const PerformanceViewModel& model, PerformancePanel panel) {
    PerformanceContent content{
        .phase = model.phase(),
        .subtitle = subtitle(model),
        .panels = {},
        .memoryPercent = {},
        .memoryFraction = 0,
        .memoryLine = {},
        .message = {},
        .apps = {},
        .loginItems = {},
    };
    if (model.phase() != Phase::list) return content;
    content.panels = panelChoices(panel);
    content.memoryPercent = std::to_string(wholePercent(model.memoryFraction()));
    content.memoryFraction = model.memoryFraction();
    content.memoryLine = memoryLine(model);
    content.message = model.lastMessage();
    content.apps = appRows(model);
    content.loginItems = loginRows(model.loginItems());
    return content;
}

}  // namespace tidewell
