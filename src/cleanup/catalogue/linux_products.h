#pragma once

#include <array>

#include "cleanup/catalogue/row.h"

namespace tidewell::products {

// The products of the Linux rows: the folders that each has, native, as a snap and as a flatpak,
// and what counts in them.

/// What a browser's engine keeps of pages and of the graphics card, beside a profile or in it.
inline constexpr CataloguePaths webCaches = {
    "Cache",       "Code Cache",        "GPUCache",        "ShaderCache",       "GrShaderCache",
    "DawnCache",   "DawnGraphiteCache", "DawnWebGPUCache", "GraphiteDawnCache", "Application Cache",
    "Media Cache",
};

/// The same of a program that is made of a browser's engine, with its logs.
inline constexpr CataloguePaths webCachesAndLogs = {
    "Cache",
    "Code Cache",
    "GPUCache",
    "ShaderCache",
    "GrShaderCache",
    "DawnCache",
    "DawnGraphiteCache",
    "DawnWebGPUCache",
    "GraphiteDawnCache",
    "Application Cache",
    "Media Cache",
    "logs",
};

inline constexpr CataloguePaths extensionCaches = {"Storage/ext/*/*/GPUCache"};
inline constexpr CataloguePaths siteData = {"Service Worker/CacheStorage"};

// Browsers: what lies beside the profiles, and the profiles.

inline constexpr CataloguePaths chromeHomes = {
    "{config}/google-chrome",
    "{config}/google-chrome-beta",
    "{config}/google-chrome-unstable",
    "~/.var/app/com.google.Chrome/config/google-chrome",
    "~/.var/app/com.google.ChromeDev/config/google-chrome-unstable",
};
inline constexpr CataloguePaths chromeProfiles = {
    "{config}/google-chrome/*",
    "{config}/google-chrome-beta/*",
    "{config}/google-chrome-unstable/*",
    "~/.var/app/com.google.Chrome/config/google-chrome/*",
    "~/.var/app/com.google.ChromeDev/config/google-chrome-unstable/*",
};
inline constexpr auto chrome = std::to_array<Product>({
    {chromeHomes, webCaches},
    {chromeProfiles, webCaches},
    {chromeProfiles, extensionCaches},
});
inline constexpr auto chromeComponents = std::to_array<Product>({{
    chromeHomes,
    {"OptGuideOnDeviceModel", "OptGuideOnDeviceClassifierModel", "optimization_guide_model_store",
     "screen_ai", "component_crx_cache"},
}});

inline constexpr CataloguePaths chromiumHomes = {
    "{config}/chromium",
    "~/snap/chromium/common/chromium",
    "~/.var/app/org.chromium.Chromium/config/chromium",
    "~/.var/app/io.github.ungoogled_software.ungoogled_chromium/config/chromium",
};
inline constexpr CataloguePaths chromiumProfiles = {
    "{config}/chromium/*",
    "~/snap/chromium/common/chromium/*",
    "~/.var/app/org.chromium.Chromium/config/chromium/*",
    "~/.var/app/io.github.ungoogled_software.ungoogled_chromium/config/chromium/*",
};
inline constexpr auto chromium = std::to_array<Product>({
    {chromiumHomes, webCaches},
    {chromiumProfiles, webCaches},
    {chromiumProfiles, extensionCaches},
});

inline constexpr CataloguePaths braveHomes = {
    "{config}/BraveSoftware/Brave-Browser",
    "{config}/BraveSoftware/Brave-Browser-Beta",
    "~/snap/brave/current/.config/BraveSoftware/Brave-Browser",
    "~/.var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser",
};
inline constexpr CataloguePaths braveProfiles = {
    "{config}/BraveSoftware/Brave-Browser/*",
    "{config}/BraveSoftware/Brave-Browser-Beta/*",
    "~/snap/brave/current/.config/BraveSoftware/Brave-Browser/*",
    "~/.var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser/*",
};
inline constexpr auto brave = std::to_array<Product>({
    {braveHomes, webCaches},
    {braveProfiles, webCaches},
    {braveProfiles, extensionCaches},
});

inline constexpr CataloguePaths edgeHomes = {
    "{config}/microsoft-edge",
    "{config}/microsoft-edge-beta",
    "{config}/microsoft-edge-dev",
    "~/.var/app/com.microsoft.Edge/config/microsoft-edge",
    "~/.var/app/com.microsoft.EdgeDev/config/microsoft-edge-dev",
};
inline constexpr CataloguePaths edgeProfiles = {
    "{config}/microsoft-edge/*",
    "{config}/microsoft-edge-beta/*",
    "{config}/microsoft-edge-dev/*",
    "~/.var/app/com.microsoft.Edge/config/microsoft-edge/*",
    "~/.var/app/com.microsoft.EdgeDev/config/microsoft-edge-dev/*",
};
inline constexpr auto edge = std::to_array<Product>({
    {edgeHomes, webCaches},
    {edgeProfiles, webCaches},
    {edgeProfiles, extensionCaches},
});

inline constexpr CataloguePaths vivaldiHomes = {
    "{config}/vivaldi",
    "{config}/vivaldi-snapshot",
    "~/snap/vivaldi/current/.config/vivaldi",
    "~/.var/app/com.vivaldi.Vivaldi/config/vivaldi",
};
inline constexpr CataloguePaths vivaldiProfiles = {
    "{config}/vivaldi/*",
    "{config}/vivaldi-snapshot/*",
    "~/snap/vivaldi/current/.config/vivaldi/*",
    "~/.var/app/com.vivaldi.Vivaldi/config/vivaldi/*",
};
inline constexpr auto vivaldi = std::to_array<Product>({
    {vivaldiHomes, webCaches},
    {vivaldiProfiles, webCaches},
    {vivaldiProfiles, extensionCaches},
});

/// Its folder is the profile.
inline constexpr CataloguePaths operaProfiles = {
    "{config}/opera",
    "{config}/opera-beta",
    "~/snap/opera/current/.config/opera",
    "~/snap/opera-beta/current/.config/opera-beta",
    "~/.var/app/com.opera.Opera/config/opera",
};
inline constexpr auto opera = std::to_array<Product>({
    {operaProfiles, webCaches},
    {operaProfiles, extensionCaches},
});

inline constexpr auto browserSiteData = std::to_array<Product>({
    {chromeProfiles, siteData},
    {chromiumProfiles, siteData},
    {braveProfiles, siteData},
    {edgeProfiles, siteData},
    {vivaldiProfiles, siteData},
    {operaProfiles, siteData},
});

// Programs that are made of a browser's engine.

inline constexpr auto slack = std::to_array<Product>({{
    {"{config}/Slack", "~/snap/slack/current/.config/Slack",
     "~/.var/app/com.slack.Slack/config/Slack"},
    webCachesAndLogs,
}});
inline constexpr auto discord = std::to_array<Product>({{
    {"{config}/discord", "~/snap/discord/current/.config/discord",
     "~/.var/app/com.discordapp.Discord/config/discord"},
    webCachesAndLogs,
}});
inline constexpr auto teams = std::to_array<Product>({{
    {"{config}/teams-for-linux", "{config}/teams-for-linux/Partitions/*",
     "{config}/Microsoft/Microsoft Teams", "~/snap/teams-for-linux/current/.config/teams-for-linux",
     "~/snap/teams-for-linux/current/.config/teams-for-linux/Partitions/*",
     "~/.var/app/com.github.IsmaelMartinez.teams_for_linux/config/teams-for-linux",
     "~/.var/app/com.github.IsmaelMartinez.teams_for_linux/config/teams-for-linux/Partitions/*"},
    webCachesAndLogs,
}});
inline constexpr auto signal = std::to_array<Product>({{
    {"{config}/Signal", "~/snap/signal-desktop/current/.config/Signal",
     "~/.var/app/org.signal.Signal/config/Signal"},
    webCachesAndLogs,
}});
inline constexpr auto element = std::to_array<Product>({{
    {"{config}/Element", "~/snap/element-desktop/current/.config/Element",
     "~/.var/app/im.riot.Riot/config/Element"},
    webCachesAndLogs,
}});
inline constexpr auto mattermost = std::to_array<Product>({{
    {"{config}/Mattermost", "~/snap/mattermost-desktop/current/.config/Mattermost",
     "~/.var/app/com.mattermost.Desktop/config/Mattermost"},
    webCachesAndLogs,
}});
inline constexpr auto notion = std::to_array<Product>({{
    {"{config}/Notion", "{config}/Notion/Partitions/*", "~/snap/notion-snap/current/.config/Notion",
     "~/snap/notion-snap/current/.config/Notion/Partitions/*"},
    webCachesAndLogs,
}});
inline constexpr auto obsidian = std::to_array<Product>({{
    {"{config}/obsidian", "~/snap/obsidian/current/.config/obsidian",
     "~/.var/app/md.obsidian.Obsidian/config/obsidian"},
    webCachesAndLogs,
}});

// Others that keep more than caches in their folders.

inline constexpr auto npm =
    std::to_array<Product>({{{"~/.npm"}, {"_cacache", "_npx", "_logs", "_prebuilds"}}});
/// Beside these lies what scripts have stored for good.
inline constexpr auto deno = std::to_array<Product>(
    {{{"{cache}/deno"}, {"deps", "remote", "npm", "gen", "registries", "dl"}}});
/// The folder that ccache has by itself, and the older one that its settings lie in too.
inline constexpr auto oldCcache = std::to_array<Product>({{
    {"~/.ccache"},
    {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "a", "b", "c", "d", "e", "f", "tmp"},
}});
inline constexpr CataloguePaths ideCaches = {"caches", "index", "log", "tmp", "compile-server"};
inline constexpr auto jetBrains = std::to_array<Product>({{{"{cache}/JetBrains/*"}, ideCaches}});
inline constexpr auto androidStudio = std::to_array<Product>({{
    {"{cache}/Google/AndroidStudio*",
     "~/.var/app/com.google.AndroidStudio/cache/Google/AndroidStudio*"},
    ideCaches,
}});
inline constexpr auto editors = std::to_array<Product>({{
    {"{config}/Code", "{config}/Code - Insiders", "{config}/VSCodium", "{config}/Cursor",
     "{config}/Windsurf", "{config}/Antigravity", "~/.var/app/com.visualstudio.code/config/Code",
     "~/.var/app/com.vscodium.codium/config/VSCodium"},
    {"Cache", "CachedData", "CachedExtensionVSIXs", "Code Cache", "GPUCache", "DawnCache",
     "DawnGraphiteCache", "DawnWebGPUCache", "CachedProfilesData", "logs"},
}});
inline constexpr auto spotify = std::to_array<Product>({{
    {"{cache}/spotify", "~/snap/spotify/common/.cache/spotify",
     "~/.var/app/com.spotify.Client/cache/spotify"},
    {"Data", "Browser"},
}});
inline constexpr auto telegram = std::to_array<Product>({{
    {"{data}/TelegramDesktop/tdata/user_data*",
     "~/snap/telegram-desktop/current/.local/share/TelegramDesktop/tdata/user_data*",
     "~/.var/app/org.telegram.desktop/data/TelegramDesktop/tdata/user_data*"},
    {"cache", "media_cache"},
}});
inline constexpr auto steam = std::to_array<Product>({{
    {"{data}/Steam", "~/.var/app/com.valvesoftware.Steam/.local/share/Steam",
     "~/.var/app/com.valvesoftware.Steam/data/Steam", "~/snap/steam/common/.local/share/Steam"},
    {"appcache", "logs", "config/htmlcache", "steamapps/shadercache"},
}});

}  // namespace tidewell::products
