#include "shell/permissions_model.h"

#include <string_view>
#include <utility>

#include "platform/files.h"
#include "shell/activation.h"

namespace tidewell {

namespace {

constexpr std::string_view protectedFile = "/Library/Application Support/com.apple.TCC/TCC.db";
constexpr auto accessSettings =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles";

/// The machine's own file decides if there is one, and the user's only if there is none. That it
/// exists says nothing; that it can be opened does.
bool canOpenProtectedFile(const Host& host) {
    const auto machines = host.systemPath(protectedFile);
    if (fileExists(machines)) return canOpenForReading(machines);
    const auto users = host.home + std::string(protectedFile);
    return fileExists(users) && canOpenForReading(users);
}

}  // namespace

PermissionsModel::PermissionsModel(Host host, Workspace workspace, Signal& didBecomeActive)
    : host_(std::move(host)), workspace_(std::move(workspace)) {
    look();
    activationObserver_ = onActivation(didBecomeActive, *this, &PermissionsModel::look);
}

bool PermissionsModel::hasAccessToGrant() const {
    switch (host_.system) {
        case System::macOS:
            return true;
        case System::linux:
            return false;
    }
    return false;
}

void PermissionsModel::openSettings() const {
    workspace_.openUrl(accessSettings);
}

void PermissionsModel::revealApp() const {
    workspace_.reveal(host_.ownBundle.path);
}

void PermissionsModel::look() {
    hasFullDiskAccess = canOpenProtectedFile(host_);
}

}  // namespace tidewell
