#include "apps/uninstall_ground.h"

#include <algorithm>

#include "platform/path_text.h"

namespace tidewell {

bool isOnGround(std::string_view path, const UninstallGround& ground) {
    const auto isBelowIt = [path](const std::string& folder) { return isBelow(path, folder); };
    const auto isIn = [path](const std::string& folder) { return parentPath(path) == folder; };
    const auto isAtOrBelowIt = [path](const auto& folder) { return isAtOrBelow(path, folder); };
    const auto holdsIt = [path](const std::string& folder) { return isAtOrBelow(folder, path); };
    if (std::ranges::any_of(ground.never, isAtOrBelowIt)) return false;
    if (std::ranges::any_of(ground.stays, holdsIt)) return false;
    return std::ranges::any_of(ground.below, isBelowIt) ||
           std::ranges::any_of(ground.directly, isIn);
}

UninstallGround macOSUninstallGround(const Host& host) {
    return {.below = {host.systemPath("/Applications"), joinPath(host.home, "Applications"),
                      joinPath(host.home, "Library")},
            .directly = {},
            .never = {host.systemPath("/System")},
            .stays = {}};
}

}  // namespace tidewell
