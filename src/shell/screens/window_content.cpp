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
    const auto fixed = section(view.mode()).view;
    return fixed.empty() ? cleanView(view.cleanupModel->phase()) : fixed;
}

}  // namespace

WindowContent windowContent(const ContentView& view) {
    WindowContent content{
        .rows = {},
        .detailView = detailView(view),
        .accent = accent(view.mode()),
        .showsAccess = view.permissions->hasAccessToGrant(),
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
