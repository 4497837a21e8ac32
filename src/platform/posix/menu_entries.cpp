#include "platform/posix/menu_entries.h"

#include <utility>

#include "platform/desktop_entry.h"

namespace tidewell::posix {

std::vector<MenuEntry> menuEntries(const Host& host) {
    std::vector<MenuEntry> entries;
    for (auto& [id, path, entry] : applicationEntries(host)) {
        const auto words = commandWords(entry.exec);
        if (entry.isHidden || !entry.isShownInMenus || words.empty()) continue;
        auto executable = namedProgram(host, words.front());
        if (!executable || isLauncher(*executable)) continue;
        entries.push_back({.id = std::move(id),
                           .name = std::move(entry.name),
                           .executable = *std::move(executable)});
    }
    return entries;
}

}  // namespace tidewell::posix
