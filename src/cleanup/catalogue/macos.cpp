#include "cleanup/catalogue/row.h"

namespace tidewell {

namespace {

constexpr auto rows = std::to_array<CatalogueRow>({
    // Developer caches
    {
        .id = "xcode-derived-data",
        .title = "Xcode DerivedData",
        .detail = "Build intermediates and indexes. Xcode rebuilds these the next time you build.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Developer/Xcode/DerivedData"},
    },
    {
        .id = "xcode-device-support",
        .title = "iOS DeviceSupport",
        .detail =
            "Debug symbols cached per connected device. Re-extracted when you plug a device in.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Developer/Xcode/iOS DeviceSupport"},
    },
    {
        .id = "coresimulator-caches",
        .title = "Simulator Caches",
        .detail =
            "Cached simulator data. Does not delete your simulators, only their throwaway caches.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Developer/CoreSimulator/Caches"},
    },
    {
        .id = "npm-cache",
        .title = "npm cache",
        .detail =
            "Downloaded npm packages. npm re-downloads anything it needs on the next install.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.npm"},
    },
    {
        .id = "gradle-caches",
        .title = "Gradle caches",
        .detail =
            "Downloaded dependencies, wrapper distributions and daemon data for Android/Java "
            "builds. Re-fetched on the next build. Your gradle.properties and init scripts stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.gradle/caches", "~/.gradle/wrapper/dists", "~/.gradle/daemon"},
    },
    {
        .id = "cocoapods-cache",
        .title = "CocoaPods cache",
        .detail = "Cached pods. Re-downloaded by `pod install` when needed.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/CocoaPods"},
    },
    {
        .id = "yarn-cache",
        .title = "Yarn cache",
        .detail = "Yarn's package cache. Re-fetched on the next install.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/Yarn", "~/.yarn/cache"},
    },
    {
        .id = "pnpm-store",
        .title = "pnpm store",
        .detail = "pnpm's content-addressable package store. Rebuilt on the next install.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/pnpm/store", "~/.pnpm-store"},
    },
    {
        .id = "pip-cache",
        .title = "pip cache",
        .detail = "Cached Python wheels. pip re-downloads them when needed.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/pip"},
    },
    {
        .id = "go-build-cache",
        .title = "Go build cache",
        .detail = "Cached Go build outputs. Regenerated automatically on the next build.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/go-build"},
    },
    {
        .id = "pub-cache",
        .title = "Dart / Pub cache",
        .detail = "Downloaded Dart & Flutter packages. Re-fetched by `pub get` when needed.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.pub-cache"},
    },
    {
        .id = "homebrew-cache",
        .title = "Homebrew downloads",
        .detail = "Cached Homebrew downloads. Safe to clear; brew re-downloads as needed.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/Homebrew"},
    },
    {
        .id = "cargo-cache",
        .title = "Rust / Cargo cache",
        .detail = "Downloaded crates, registry index and cached git dependencies. Re-fetched on "
                  "the next build. Your installed tools in ~/.cargo/bin and credentials stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.cargo/registry/cache", "~/.cargo/registry/index", "~/.cargo/registry/src",
                  "~/.cargo/git/checkouts", "~/.cargo/git/db"},
    },
    {
        .id = "maven-repo",
        .title = "Maven repository",
        .detail = "Cached Maven/Java dependencies. Re-downloaded when a build needs them.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.m2/repository"},
    },
    {
        .id = "bun-cache",
        .title = "Bun cache",
        .detail = "Bun's package cache. Rebuilt on the next install.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.bun/install/cache"},
    },
    {
        .id = "deno-cache",
        .title = "Deno cache",
        .detail = "Cached Deno modules. Re-fetched when needed.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/deno"},
    },
    {
        .id = "playwright-browsers",
        .title = "Playwright browsers",
        .detail = "Downloaded test browsers. Re-installed with `playwright install`.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/ms-playwright"},
    },
    {
        .id = "swiftpm-cache",
        .title = "Swift Package Manager cache",
        .detail = "Cached package repositories and manifests SwiftPM re-clones on the next "
                  "resolve. Your dependency config and trust settings are left alone.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/org.swift.swiftpm"},
    },
    {
        .id = "uv-cache",
        .title = "uv cache",
        .detail = "Downloaded wheels and package data cached by the uv Python installer. "
                  "Re-fetched on the next install.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/uv"},
    },
    {
        .id = "node-gyp-cache",
        .title = "node-gyp headers",
        .detail = "Node.js headers node-gyp downloads to build native modules. Re-fetched when a "
                  "native package is rebuilt.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/node-gyp", "~/.node-gyp"},
    },
    {
        .id = "composer-cache",
        .title = "Composer cache",
        .detail = "Downloaded PHP packages cached by Composer. Re-fetched on the next install. "
                  "Your auth tokens and global config stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.composer/cache", "~/Library/Caches/composer"},
    },
    {
        .id = "cocoapods-spec-repos",
        .title = "CocoaPods spec repo",
        .detail = "The public CocoaPods trunk spec mirror. Re-fetched by `pod install`; the first "
                  "install after clearing is slower.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.cocoapods/repos/trunk"},
    },
    {
        .id = "unity-caches",
        .title = "Unity caches",
        .detail = "Unity's global illumination cache and downloaded package caches. Rebuilt on the "
                  "next open or import; your projects and assets are untouched.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/com.unity3d.UnityEditor/GiCache", "~/Library/Caches/Unity/upm",
                  "~/Library/Unity/cache/bee", "~/Library/Unity/cache/npm",
                  "~/Library/Unity/cache/packages"},
    },
    {
        .id = "xcode-caches",
        .title = "Xcode caches",
        .detail = "Xcode's own cache folder. Rebuilt automatically as you work.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Caches/com.apple.dt.Xcode"},
    },
    {
        .id = "xcode-archives",
        .title = "Xcode Archives",
        .detail = "App archives from past releases. They're needed to symbolicate old crash logs "
                  "or re-export those builds. Clear only if you don't need them.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/Library/Developer/Xcode/Archives"},
        .safety = SafetyLevel::caution,
    },
    {
        .id = "cli-tool-caches",
        .title = "Command-line tool caches",
        .detail = "The shared ~/.cache folder used by command-line tools. Everything in it is "
                  "rebuilt on demand.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.cache"},
        .kind = TargetKind::sweep,
    },
    // App caches
    {
        .id = "adobe-media-cache",
        .title = "Adobe media cache",
        .detail = "Preview/peak files for Premiere & After Effects. Regenerated when you reopen a "
                  "project.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/Adobe/Common/Media Cache Files",
                  "~/Library/Application Support/Adobe/Common/Media Cache",
                  "~/Library/Application Support/Adobe/Common/Peak Files",
                  "~/Library/Application Support/Adobe/Common/Analyzer Cache Files"},
    },
    {
        .id = "chrome-cache",
        .title = "Google Chrome cache",
        .detail = "Chrome's on-disk cache. Does not touch history, passwords, or bookmarks.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/Google/Chrome"},
    },
    {
        .id = "safari-cache",
        .title = "Safari cache",
        .detail = "Safari's on-disk cache. Does not touch history, passwords, or bookmarks. Needs "
                  "Full Disk Access.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.apple.Safari",
                  "~/Library/Containers/com.apple.Safari/Data/Library/Caches/com.apple.Safari"},
    },
    {
        .id = "firefox-cache",
        .title = "Firefox cache",
        .detail = "Firefox's on-disk cache. Does not touch history, passwords, or bookmarks.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/Firefox"},
    },
    {
        .id = "edge-cache",
        .title = "Microsoft Edge cache",
        .detail = "Edge's on-disk cache. Does not touch history, passwords, or bookmarks.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/Microsoft Edge"},
    },
    {
        .id = "brave-cache",
        .title = "Brave cache",
        .detail = "Brave's on-disk cache. Does not touch history, passwords, or bookmarks.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/BraveSoftware"},
    },
    {
        .id = "arc-cache",
        .title = "Arc cache",
        .detail = "Arc's on-disk cache. Does not touch history, passwords, or bookmarks.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/Arc", "~/Library/Caches/company.thebrowser.Browser"},
    },
    {
        .id = "slack-cache",
        .title = "Slack cache",
        .detail = "Slack's message and image cache. Re-downloaded as you use Slack; sign-in is "
                  "untouched.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/Slack/Cache",
                  "~/Library/Application Support/Slack/Service Worker/CacheStorage",
                  "~/Library/Containers/com.tinyspeck.slackmacgap/Data/Library/Application "
                  "Support/Slack/Cache"},
    },
    {
        .id = "discord-cache",
        .title = "Discord cache",
        .detail = "Discord's image and media cache. Rebuilt as you chat; sign-in is untouched.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/discord/Cache",
                  "~/Library/Application Support/discord/Code Cache",
                  "~/Library/Application Support/discord/GPUCache"},
    },
    {
        .id = "teams-cache",
        .title = "Microsoft Teams cache",
        .detail = "Teams' web cache. Rebuilt on the next launch; sign-in is untouched.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/Microsoft/Teams/Service Worker/CacheStorage",
                  "~/Library/Containers/com.microsoft.teams2/Data/Library/Caches"},
    },
    {
        .id = "spotify-cache",
        .title = "Spotify cache",
        .detail = "Spotify's streaming cache. Songs re-buffer as you listen; downloads and "
                  "playlists stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.spotify.client"},
    },
    {
        .id = "appstore-cache",
        .title = "App Store cache",
        .detail = "The Mac App Store's own cache. Rebuilt automatically.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.apple.appstore"},
    },
    {
        .id = "chrome-components",
        .title = "Chrome downloadable components",
        .detail = "Chrome's on-device AI models and optional components. Often several GB. Chrome "
                  "re-downloads them if a feature needs them.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/Google/Chrome/OptGuideOnDeviceModel",
                  "~/Library/Application Support/Google/Chrome/OptGuideOnDeviceClassifierModel",
                  "~/Library/Application Support/Google/Chrome/optimization_guide_model_store",
                  "~/Library/Application Support/Google/Chrome/screen_ai",
                  "~/Library/Application Support/Google/Chrome/component_crx_cache"},
    },
    {
        .id = "chrome-profile-caches",
        .title = "Chrome web-app caches",
        .detail =
            "Cached site data (service workers, compiled scripts) in Chrome's main profile. Sites "
            "rebuild these on your next visit; history, passwords and bookmarks are untouched.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/Google/Chrome/Default/Service Worker/CacheStorage",
                  "~/Library/Application Support/Google/Chrome/Default/Code Cache",
                  "~/Library/Application Support/Google/Chrome/Default/GPUCache"},
    },
    {
        .id = "editor-app-caches",
        .title = "Code editor caches",
        .detail = "Web caches kept by VS Code–family editors (VS Code, Windsurf, Cursor, "
                  "Antigravity). Rebuilt on the next launch; settings and extensions stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/Code/Cache",
                  "~/Library/Application Support/Code/CachedData",
                  "~/Library/Application Support/Code/Code Cache",
                  "~/Library/Application Support/Windsurf/Cache",
                  "~/Library/Application Support/Windsurf/CachedData",
                  "~/Library/Application Support/Windsurf/Code Cache",
                  "~/Library/Application Support/Cursor/Cache",
                  "~/Library/Application Support/Cursor/CachedData",
                  "~/Library/Application Support/Cursor/Code Cache",
                  "~/Library/Application Support/Antigravity/Cache",
                  "~/Library/Application Support/Antigravity/CachedData",
                  "~/Library/Application Support/Antigravity/Code Cache"},
    },
    {
        .id = "claude-app-caches",
        .title = "Claude app caches",
        .detail = "The Claude desktop app's web caches. Rebuilt on the next launch; sign-in and "
                  "chats stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/Claude/Cache",
                  "~/Library/Application Support/Claude/Code Cache",
                  "~/Library/Application Support/Claude/GPUCache"},
    },
    {
        .id = "claude-vm-bundles",
        .title = "Claude Code VM images",
        .detail = "Downloaded virtual-machine bundles used by Claude Code. Several GB, "
                  "re-downloaded when needed. Don't clear while a coding session is running.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/Claude/vm_bundles",
                  "~/Library/Application Support/Claude/claude-code-vm"},
        .safety = SafetyLevel::caution,
    },
    {
        .id = "apple-music-cache",
        .title = "Apple Music cache",
        .detail = "The Music app's streaming cache. Songs re-buffer as you play; your library and "
                  "downloads stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.apple.Music"},
    },
    {
        .id = "apple-tv-cache",
        .title = "Apple TV cache",
        .detail =
            "The TV app's streaming cache. Rebuilt as you watch; purchases and downloads stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.apple.TV"},
    },
    {
        .id = "apple-podcasts-cache",
        .title = "Podcasts cache",
        .detail = "The Podcasts app's cache. Rebuilt as you browse; downloaded episodes stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.apple.podcasts",
                  "~/Library/Containers/com.apple.podcasts/Data/Library/Caches"},
    },
    {
        .id = "media-player-caches",
        .title = "Media player caches",
        .detail = "Thumbnail and playback caches for VLC, IINA and Infuse. Rebuilt as you watch; "
                  "your files stay put.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/org.videolan.vlc", "~/Library/Caches/com.colliderli.iina",
                  "~/Library/Caches/com.firecore.infuse"},
    },
    {
        .id = "audible-cache",
        .title = "Audible cache",
        .detail = "Audible's app cache. Rebuilt as you use it; your library and downloads stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.audible.application",
                  "~/Library/Containers/com.audible.application/Data/Library/Caches"},
    },
    {
        .id = "zoom-cache",
        .title = "Zoom cache",
        .detail = "Zoom's on-disk cache. Rebuilt on the next call; your sign-in stays.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/us.zoom.xos"},
    },
    {
        .id = "signal-cache",
        .title = "Signal cache",
        .detail = "Signal's web cache. Rebuilt on the next launch; your messages and sign-in stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Application Support/Signal/Cache",
                  "~/Library/Application Support/Signal/Code Cache",
                  "~/Library/Application Support/Signal/GPUCache"},
    },
    {
        .id = "office-cache",
        .title = "Microsoft Office cache",
        .detail = "On-disk caches for Word, Excel, PowerPoint and Outlook. Rebuilt as you work; "
                  "your documents and account stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.microsoft.Word", "~/Library/Caches/com.microsoft.Excel",
                  "~/Library/Caches/com.microsoft.Powerpoint",
                  "~/Library/Caches/com.microsoft.Outlook",
                  "~/Library/Caches/com.microsoft.onenote.mac"},
    },
    {
        .id = "onedrive-cache",
        .title = "OneDrive cache",
        .detail = "OneDrive's on-disk cache. Rebuilt automatically; your synced files stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.microsoft.OneDrive"},
    },
    {
        .id = "figma-cache",
        .title = "Figma cache",
        .detail =
            "Figma desktop's cache. Rebuilt on the next launch; your files live in the cloud.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.figma.Desktop"},
    },
    {
        .id = "blender-cache",
        .title = "Blender cache",
        .detail = "Blender's on-disk cache. Rebuilt as you work; your projects stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/Blender"},
    },
    {
        .id = "steam-caches",
        .title = "Steam caches",
        .detail = "Steam's shader and web caches, not your games. Regenerated as you play; "
                  "installed games stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.valvesoftware.steam",
                  "~/Library/Application Support/Steam/appcache",
                  "~/Library/Application Support/Steam/steamapps/shadercache",
                  "~/Library/Application Support/Steam/config/htmlcache"},
    },
    {
        .id = "epic-cache",
        .title = "Epic Games cache",
        .detail = "The Epic Games launcher's cache, not your games. Rebuilt automatically.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches/com.epicgames.EpicGamesLauncher",
                  "~/Library/Application Support/Epic/EpicGamesLauncher/Data/webcache"},
    },
    {
        .id = "other-app-caches",
        .title = "Other app caches",
        .detail = "Caches every other app keeps in ~/Library/Caches, the folder macOS designates "
                  "as safe to purge. Apps rebuild what they need. Items listed separately are not "
                  "double-counted.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/Library/Caches"},
        .kind = TargetKind::sweep,
    },
    // System
    {
        .id = "mail-downloads",
        .title = "Mail attachment copies",
        .detail = "Copies of attachments you opened from Mail. The originals stay in your mailbox.",
        .category = CleanupCategory::system,
        .paths = {"~/Library/Containers/com.apple.mail/Data/Library/Mail Downloads"},
    },
    {
        .id = "ios-updates",
        .title = "Old iOS update installers",
        .detail = "iOS installer files downloaded while updating a connected iPhone or iPad. No "
                  "longer needed after the update.",
        .category = CleanupCategory::system,
        .paths = {"~/Library/iTunes/iPhone Software Updates"},
    },
    {
        .id = "ios-backups",
        .title = "iPhone / iPad backups",
        .detail = "Local device backups, often tens of GB. Removal is permanent: clear only if you "
                  "back up to iCloud or no longer need these devices restored.",
        .category = CleanupCategory::system,
        .paths = {"~/Library/Application Support/MobileSync/Backup"},
        .safety = SafetyLevel::caution,
    },
    {
        .id = "user-logs",
        .title = "User logs",
        .detail = "App and system log files. Safe to clear; new logs are written as needed.",
        .category = CleanupCategory::system,
        .paths = {"~/Library/Logs"},
    },
    {
        .id = "saved-app-state",
        .title = "Saved app windows",
        .detail = "Window/restore state for apps. Clearing just means apps reopen fresh.",
        .category = CleanupCategory::system,
        .paths = {"~/Library/Saved Application State"},
    },
    {
        .id = "macos-on-demand-assets",
        .title = "macOS on-demand assets",
        .detail =
            "Downloaded fonts, voices and extras macOS fetches on demand. Re-downloaded if needed.",
        .category = CleanupCategory::system,
        .paths = {"~/Library/Application Support/com.apple.mobileAssetDesktop"},
        .safety = SafetyLevel::caution,
    },
    {
        .id = "user-temp",
        .title = "Temporary files",
        .detail = "Per-user scratch space macOS clears on restart anyway. Quit heavyweight apps "
                  "first, since some keep work-in-progress files here.",
        .category = CleanupCategory::system,
        .safety = SafetyLevel::caution,
        .source = PathSource::deletableRoots,
    },
    {
        .id = "trash",
        .title = "Empty Trash",
        .detail =
            "Permanently removes everything in the Trash. Make sure you don't need any of it.",
        .category = CleanupCategory::system,
        .paths = {"~/.Trash"},
        .safety = SafetyLevel::caution,
    },
});

constexpr std::size_t storedPaths() {
    std::size_t count = 0;
    for (const auto& row : rows) count += row.paths.size();
    return count;
}

static_assert(rows.size() == 65);
static_assert(idsAreUnique(rows));
static_assert(storedPaths() == 122);

/// Other programs' state that only looks like a cache.
constexpr std::array<std::string_view, 6> neverSwept = {
    "CloudKit", "com.apple.HomeKit", "FamilyCircle", "huggingface", "torch", "lm-studio",
};

constexpr auto modelCaches = std::to_array<CatalogueRow>({
    {.id = "hf-hub-cache",
     .title = "Hugging Face model cache",
     .detail = "Downloaded model weights (transformers, diffusers). Re-downloadable, but large "
               "and slow to refetch. Your login token is left alone.",
     .category = CleanupCategory::aiCaches,
     .paths = {"~/.cache/huggingface/hub", "~/.cache/huggingface/xet"},
     .safety = SafetyLevel::caution},
    {.id = "torch-hub-cache",
     .title = "PyTorch model cache",
     .detail = "Pretrained weights cached by torch.hub. Re-downloaded when a model needs them.",
     .category = CleanupCategory::aiCaches,
     .paths = {"~/.cache/torch/hub/checkpoints"},
     .safety = SafetyLevel::caution},
    {.id = "keras-model-cache",
     .title = "Keras model cache",
     .detail = "Pretrained Keras / TensorFlow weights. Re-downloaded on next use; your datasets "
               "and settings stay.",
     .category = CleanupCategory::aiCaches,
     .paths = {"~/.keras/models"},
     .safety = SafetyLevel::caution},
    {.id = "conda-pkg-cache",
     .title = "Conda package cache",
     .detail = "Downloaded conda packages, not your environments. Re-fetched when needed.",
     .category = CleanupCategory::aiCaches,
     .paths = {"~/miniconda3/pkgs", "~/anaconda3/pkgs", "~/opt/anaconda3/pkgs",
               "~/miniforge3/pkgs"},
     .safety = SafetyLevel::caution},
});

}  // namespace

Catalogue macOSCatalogue() {
    return {.rows = rows, .neverSwept = neverSwept, .modelCaches = modelCaches};
}

}  // namespace tidewell
