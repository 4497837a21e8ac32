#include "apps/uninstall_guard.h"

#include <algorithm>

#include "apps/linux/linux_apps.h"
#include "cleanup/kept_places.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

UninstallGround groundOf(const Host& host) {
    switch (host.system) {
        case System::macOS:
            return macOSUninstallGround(host);
        case System::linux:
            return linuxUninstallGround(host);
    }
    return {};
}

bool isOnAnyOf(const std::vector<std::string>& folders, std::string_view path) {
    return std::ranges::any_of(folders,
                               [path](const auto& folder) { return isAtOrBelow(path, folder); });
}

}  // namespace

UninstallGuard::UninstallGuard(const Host& host) : host_(host), ground_(groundOf(host)) {}

bool UninstallGuard::isAllowed(std::string_view path) const {
    // What stands behind a zero byte would be judged here and not seen by the system.
    if (path.find('\0') != std::string_view::npos) return false;
    return isOnGround(standardizedPath(path), ground_);
}

std::optional<TrashablePath> UninstallGuard::approve(std::string_view path) const {
    if (!host_.mayRemove() || !mayGo(path)) return std::nullopt;
    auto named = standardizedPath(path);
    auto real = realLocation(named);
    if (!real || !mayGo(*real)) return std::nullopt;
    const KeptPlaces kept(host_);
    const auto names = kept.namesOf(*real);
    if (!kept.knowsNamesOf(*real) || kept.mustStay(names) || kept.isInKeys(names))
        return std::nullopt;
    if (kept.isPersonal(names) && !isLooseAppImage(*real)) return std::nullopt;
    return TrashablePath(std::move(named), std::move(*real));
}

bool UninstallGuard::mayGo(std::string_view path) const {
    return isAllowed(path) || isOwnProgram(standardizedPath(path));
}

/// People unpack programs anywhere. Such a file alone may go, and no folder.
bool UninstallGuard::isOwnProgram(const std::string& path) const {
    return host_.system == System::linux && isBelow(path, host_.home) &&
           !isOnAnyOf(ground_.never, path) && path.find('\0') == std::string::npos &&
           isProgram(path);
}

/// A download that was never put elsewhere.
bool UninstallGuard::isLooseAppImage(const std::string& real) const {
    return host_.system == System::linux && isAppImageFile(real);
}

}  // namespace tidewell
