#include "apps/linux/app_entries.h"

#include <algorithm>
#include <array>

#include "platform/path_text.h"

namespace tidewell {

namespace {

/// Folders in the base folders that belong to the desktop and to all applications.
constexpr auto sharedNames = std::to_array<std::string_view>({
    "Trash",
    "applications",
    "autostart",
    "backgrounds",
    "bin",
    "containers",
    "dbus-1",
    "dconf",
    "desktop",
    "doc",
    "environment.d",
    "evolution",
    "flatpak",
    "fontconfig",
    "fonts",
    "glib-2.0",
    "gnome-session",
    "gnome-shell",
    "gtk-2.0",
    "gtk-3.0",
    "gtk-4.0",
    "gvfs",
    "gvfs-metadata",
    "ibus",
    "icons",
    "keyrings",
    "kwin",
    "locale",
    "man",
    "menus",
    "mime",
    "nautilus",
    "pulse",
    "python",
    "sounds",
    "systemd",
    "themes",
    "thumbnails",
    "tracker",
    "tracker3",
    "user-dirs.dirs",
    "wayland-sessions",
    "wireplumber",
    "xsessions",
});

constexpr std::size_t shortestName = 3;

/// "env A=b program" starts the program.
std::string startedWord(const DesktopEntry& entry) {
    auto words = commandWords(entry.exec);
    auto word = words.begin();
    const auto isSetting = [&] { return word->find('=') != word->npos || word->starts_with('-'); };
    if (word != words.end() && lastPathComponent(*word) == "env")
        for (++word; word != words.end() && isSetting();) ++word;
    return word == words.end() ? std::string() : *word;
}

}  // namespace

bool canBeKeptUnder(std::string_view name) {
    constexpr std::string_view neverInAName("/\0", 2);
    return name.size() >= shortestName && name.front() != '.' &&
           name.find_first_of(neverInAName) == name.npos && !isLauncher(name) &&
           std::ranges::find(sharedNames, name) == sharedNames.end();
}

AppEntry appEntryOf(const Host& host, EntryFile file) {
    AppEntry entry{.file = std::move(file), .word = {}, .program = {}};
    entry.word = startedWord(entry.file.entry);
    entry.program = namedProgram(host, entry.word);
    return entry;
}

bool isShown(const Host& host, const AppEntry& entry) {
    const auto& facts = entry.file.entry;
    if (facts.isHidden || !facts.isShownInMenus) return false;
    return facts.tryExec.empty() || namedProgram(host, facts.tryExec);
}

std::vector<std::string> namesKeptUnder(const AppEntry& entry) {
    std::vector<std::string> names = {entry.file.id, std::string(lastPathComponent(entry.word)),
                                      entry.file.entry.startupWMClass};
    std::erase_if(names, [](const std::string& name) { return !canBeKeptUnder(name); });
    return names;
}

}  // namespace tidewell
