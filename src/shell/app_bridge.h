#pragma once

#include <functional>
#include <optional>
#include <string>

#include "shell/notification_center.h"

namespace tidewell {

/// Links what lies outside the window (the status item's popover, the menu, a second start of the
/// program) to what lies inside it, whether the window's root exists at that moment or not. A wish
/// is both noted and posted: a root that exists hears the post, and one that appears later finds
/// the note. Only an appearing root takes a note away, so one that appears later still acts on a
/// wish that an earlier one has heard. Main thread only; lives as long as the process.
class AppBridge {
 public:
    /// `activate` brings the program before all others.
    AppBridge(NotificationCenter& center, std::function<void()> activate)
        : center_(center), activate_(std::move(activate)) {}

    /// Opens or raises the main window; absent until there was one.
    std::function<void()> openWindow;
    /// A smart scan is wanted as soon as the window's root appears.
    bool autoStartScan = false;
    /// The name of the section wanted then.
    std::optional<std::string> pendingSection;

    void requestScan();
    void openSection(const std::string& name);
    /// Shows the window and comes to the front, without a wish.
    void showWindow();
    void showAbout();

 private:
    NotificationCenter& center_;
    std::function<void()> activate_;
};

}  // namespace tidewell
