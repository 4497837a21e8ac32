#include "shell/screens/window_content.h"

namespace tidewell {

namespace {

std::string_view cleanView(CleanupViewModel::Phase phase) {
    switch (phase) {
        case CleanupViewModel::Phase::idle:
        case CleanupViewModel::Phase::scanning:
            return "ScanView";
        case CleanupViewModel::Phase::review:
            return "ReviewView";
        case CleanupViewModel::Phase::cleaning:
        case CleanupViewModel::Phase::done:
            return "CleanedView";
    }
    return {};
}

std::string_view detailView(const ContentView& view) {
    switch (view.mode()) {
        case Mode::home:
            return "HomeView";
        case Mode::clean:
            return cleanView(view.cleanupModel->phase());
        case Mode::devMode:
            return "DevModeView";
        case Mode::apps:
            return "AppsView";
        case Mode::performance:
            return "PerformanceView";
        case Mode::deepScan:
            return "DeepScanView";
        case Mode::advisor:
            return "AdvisorView";
    }
    return {};
}

}  // namespace

WindowContent windowContent(const ContentView& view) {
    WindowContent content{
        .rows = {},
        .detailView = detailView(view),
        .accent = accent(view.mode()),
        .hasFullDiskAccess = view.permissions->hasFullDiskAccess(),
    };
    for (const auto mode : view.sidebarModes())
        content.rows.push_back({.mode = mode,
                                .symbol = symbol(mode),
                                .label = title(mode),
                                .isActive = mode == view.mode()});
    return content;
}

}  // namespace tidewell
