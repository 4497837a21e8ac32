#include <algorithm>

#include "apps/linux/linux_apps.h"
#include "apps/uninstall_ground.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

UninstallGround linuxUninstallGround(const Host& host) {
    const auto& [cache, config, data, state] = host.baseFolders;
    UninstallGround ground;
    ground.directly = {cache, config, data, state};
    for (const auto* folder : {".var/app", "snap"})
        ground.directly.push_back(joinPath(host.home, folder));
    ground.directly.push_back(joinPath(config, "autostart"));
    std::ranges::copy(appImageFolders(host), std::back_inserter(ground.directly));
    ground.below = unpackedFolders(host);
    ground.below.push_back(joinPath(host.home, ".icons"));
    for (const auto* folder : {"Trash", "flatpak", "keyrings"})
        ground.never.push_back(joinPath(data, folder));
    // Dotfiles lead elsewhere.
    for (auto* folders : {&ground.directly, &ground.below, &ground.never})
        for (const auto& folder : std::vector<std::string>(*folders))
            if (auto real = resolvedPath(folder); real && *real != folder)
                folders->push_back(*std::move(real));
    ground.stays = ground.directly;
    std::ranges::copy(ground.below, std::back_inserter(ground.stays));
    for (const auto* folder : {"applications", "icons"})
        ground.stays.push_back(joinPath(data, folder));
    return ground;
}

}  // namespace tidewell
