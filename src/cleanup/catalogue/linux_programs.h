#pragma once

#include <array>

#include "cleanup/catalogue/program.h"

namespace tidewell::programs {

// The programs of the Linux rows, with the signs by which they are known while they run.

inline constexpr auto chrome = std::to_array<Program>({{
    .name = "Google Chrome",
    .executables = {"chrome", "google-chrome", "google-chrome-stable", "google-chrome-beta",
                    "google-chrome-unstable"},
    .flatpaks = {"com.google.Chrome", "com.google.ChromeDev"},
    .lockFiles = {"{config}/google-chrome/SingletonLock",
                  "{config}/google-chrome-beta/SingletonLock",
                  "{config}/google-chrome-unstable/SingletonLock",
                  "~/.var/app/com.google.Chrome/config/google-chrome/SingletonLock",
                  "~/.var/app/com.google.ChromeDev/config/google-chrome-unstable/SingletonLock"},
}});

inline constexpr auto chromium = std::to_array<Program>({{
    .name = "Chromium",
    .executables = {"chromium", "chromium-browser"},
    .flatpaks = {"org.chromium.Chromium", "io.github.ungoogled_software.ungoogled_chromium"},
    .snaps = {"chromium"},
    .lockFiles = {"{config}/chromium/SingletonLock",
                  "~/snap/chromium/common/chromium/SingletonLock",
                  "~/.var/app/org.chromium.Chromium/config/chromium/SingletonLock"},
}});

inline constexpr auto brave = std::to_array<Program>({{
    .name = "Brave",
    .executables = {"brave", "brave-browser", "brave-browser-stable"},
    .flatpaks = {"com.brave.Browser"},
    .snaps = {"brave"},
    .lockFiles = {"{config}/BraveSoftware/Brave-Browser/SingletonLock",
                  "~/snap/brave/current/.config/BraveSoftware/Brave-Browser/SingletonLock",
                  "~/.var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser/SingletonLock"},
}});

inline constexpr auto edge = std::to_array<Program>({{
    .name = "Microsoft Edge",
    .executables = {"msedge", "microsoft-edge", "microsoft-edge-stable", "microsoft-edge-beta",
                    "microsoft-edge-dev"},
    .flatpaks = {"com.microsoft.Edge", "com.microsoft.EdgeDev"},
    .lockFiles = {"{config}/microsoft-edge/SingletonLock",
                  "{config}/microsoft-edge-beta/SingletonLock",
                  "{config}/microsoft-edge-dev/SingletonLock",
                  "~/.var/app/com.microsoft.Edge/config/microsoft-edge/SingletonLock"},
}});

inline constexpr auto vivaldi = std::to_array<Program>({{
    .name = "Vivaldi",
    .executables = {"vivaldi", "vivaldi-bin", "vivaldi-stable", "vivaldi-snapshot"},
    .flatpaks = {"com.vivaldi.Vivaldi"},
    .snaps = {"vivaldi"},
    .lockFiles = {"{config}/vivaldi/SingletonLock", "{config}/vivaldi-snapshot/SingletonLock",
                  "~/.var/app/com.vivaldi.Vivaldi/config/vivaldi/SingletonLock"},
}});

inline constexpr auto opera = std::to_array<Program>({{
    .name = "Opera",
    .executables = {"opera", "opera-beta"},
    .flatpaks = {"com.opera.Opera"},
    .snaps = {"opera", "opera-beta"},
    .lockFiles = {"{config}/opera/SingletonLock", "{config}/opera-beta/SingletonLock",
                  "~/.var/app/com.opera.Opera/config/opera/SingletonLock"},
}});

inline constexpr auto chromiumFamily =
    std::to_array<Program>({chrome[0], chromium[0], brave[0], edge[0], vivaldi[0], opera[0]});

inline constexpr auto firefox = std::to_array<Program>({{
    .name = "Firefox",
    .executables = {"firefox", "firefox-bin", "firefox-esr"},
    .flatpaks = {"org.mozilla.firefox"},
    .snaps = {"firefox"},
    .lockFiles = {"~/.mozilla/firefox/*/lock", "~/snap/firefox/common/.mozilla/firefox/*/lock",
                  "~/.var/app/org.mozilla.firefox/.mozilla/firefox/*/lock"},
}});

inline constexpr auto thunderbird = std::to_array<Program>({{
    .name = "Thunderbird",
    .executables = {"thunderbird", "thunderbird-bin"},
    .flatpaks = {"org.mozilla.Thunderbird", "org.mozilla.thunderbird"},
    .snaps = {"thunderbird"},
    .lockFiles = {"~/.thunderbird/*/lock", "~/snap/thunderbird/common/.thunderbird/*/lock",
                  "~/.var/app/org.mozilla.Thunderbird/.thunderbird/*/lock"},
}});

inline constexpr auto librewolf = std::to_array<Program>({{
    .name = "LibreWolf",
    .executables = {"librewolf", "librewolf-bin"},
    .flatpaks = {"io.gitlab.librewolf-community"},
    .lockFiles = {"~/.librewolf/*/lock",
                  "~/.var/app/io.gitlab.librewolf-community/.librewolf/*/lock"},
}});

inline constexpr auto jetBrains = std::to_array<Program>({{
    .name = "your JetBrains IDE",
    .executables = {"idea", "pycharm", "webstorm", "phpstorm", "clion", "goland", "rider",
                    "rubymine", "datagrip", "rustrover"},
    .snaps = {"intellij-idea-community", "intellij-idea-ultimate", "pycharm-community",
              "pycharm-professional", "webstorm", "phpstorm", "clion", "goland", "rider"},
    .lockFiles = {"{config}/JetBrains/*/.lock", "{cache}/JetBrains/*/.pid"},
}});

inline constexpr auto androidStudio = std::to_array<Program>({{
    .name = "Android Studio",
    .executables = {"studio"},
    .flatpaks = {"com.google.AndroidStudio"},
    .snaps = {"android-studio"},
    .lockFiles = {"{config}/Google/AndroidStudio*/.lock", "{cache}/Google/AndroidStudio*/.pid"},
}});

inline constexpr auto editors = std::to_array<Program>({
    {
        .name = "VS Code",
        .executables = {"code", "code-insiders"},
        .flatpaks = {"com.visualstudio.code", "com.visualstudio.code.insiders"},
        .snaps = {"code", "code-insiders"},
        .lockFiles = {"{config}/Code/code.lock", "{config}/Code - Insiders/code.lock"},
    },
    {
        .name = "VSCodium",
        .executables = {"codium", "vscodium"},
        .flatpaks = {"com.vscodium.codium"},
        .snaps = {"codium"},
        .lockFiles = {"{config}/VSCodium/code.lock"},
    },
    {.name = "Cursor", .executables = {"cursor"}, .lockFiles = {"{config}/Cursor/code.lock"}},
    {.name = "Windsurf", .executables = {"windsurf"}, .lockFiles = {"{config}/Windsurf/code.lock"}},
    {
        .name = "Antigravity",
        .executables = {"antigravity"},
        .lockFiles = {"{config}/Antigravity/code.lock"},
    },
});

inline constexpr auto slack = std::to_array<Program>({{
    .name = "Slack",
    .executables = {"slack"},
    .flatpaks = {"com.slack.Slack"},
    .snaps = {"slack"},
    .lockFiles = {"{config}/Slack/SingletonLock"},
}});

inline constexpr auto discord = std::to_array<Program>({{
    .name = "Discord",
    .executables = {"Discord", "discord"},
    .flatpaks = {"com.discordapp.Discord"},
    .snaps = {"discord"},
    .lockFiles = {"{config}/discord/SingletonLock"},
}});

inline constexpr auto teams = std::to_array<Program>({{
    .name = "Teams",
    .executables = {"teams", "teams-for-linux"},
    .flatpaks = {"com.github.IsmaelMartinez.teams_for_linux"},
    .snaps = {"teams", "teams-for-linux"},
    .lockFiles = {"{config}/teams-for-linux/SingletonLock"},
}});

inline constexpr auto signal = std::to_array<Program>({{
    .name = "Signal",
    .executables = {"signal-desktop"},
    .flatpaks = {"org.signal.Signal"},
    .snaps = {"signal-desktop"},
    .lockFiles = {"{config}/Signal/SingletonLock"},
}});

inline constexpr auto element = std::to_array<Program>({{
    .name = "Element",
    .executables = {"element-desktop"},
    .flatpaks = {"im.riot.Riot"},
    .snaps = {"element-desktop"},
    .lockFiles = {"{config}/Element/SingletonLock"},
}});

inline constexpr auto mattermost = std::to_array<Program>({{
    .name = "Mattermost",
    .executables = {"mattermost-desktop"},
    .flatpaks = {"com.mattermost.Desktop"},
    .snaps = {"mattermost-desktop"},
    .lockFiles = {"{config}/Mattermost/SingletonLock"},
}});

inline constexpr auto notion = std::to_array<Program>({{
    .name = "Notion",
    .executables = {"notion", "notion-app", "notion-snap"},
    .snaps = {"notion-snap", "notion-snap-reborn"},
    .lockFiles = {"{config}/Notion/SingletonLock"},
}});

inline constexpr auto obsidian = std::to_array<Program>({{
    .name = "Obsidian",
    .executables = {"obsidian"},
    .flatpaks = {"md.obsidian.Obsidian"},
    .snaps = {"obsidian"},
    .lockFiles = {"{config}/obsidian/SingletonLock"},
}});

inline constexpr auto spotify = std::to_array<Program>({{
    .name = "Spotify",
    .executables = {"spotify"},
    .flatpaks = {"com.spotify.Client"},
    .snaps = {"spotify"},
}});

inline constexpr auto telegram = std::to_array<Program>({{
    .name = "Telegram",
    .executables = {"telegram-desktop", "Telegram"},
    .flatpaks = {"org.telegram.desktop"},
    .snaps = {"telegram-desktop"},
}});

inline constexpr auto steam = std::to_array<Program>({{
    .name = "Steam",
    .executables = {"steam"},
    .flatpaks = {"com.valvesoftware.Steam"},
    .snaps = {"steam"},
}});

}  // namespace tidewell::programs
