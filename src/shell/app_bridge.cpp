#include "shell/app_bridge.h"

namespace tidewell {

void AppBridge::requestScan() {
    autoStartScan = true;
    showWindow();
    center_.post(runScanNotification);
}

void AppBridge::openSection(const std::string& name) {
    pendingSection = name;
    showWindow();
    center_.post(openSectionNotification, name);
}

void AppBridge::showWindow() {
    if (openWindow) openWindow();
    activate_();
}

void AppBridge::showAbout() {
    showWindow();
    center_.post(showAboutNotification);
}

}  // namespace tidewell
