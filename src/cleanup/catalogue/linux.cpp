#include "cleanup/catalogue/linux_products.h"
#include "cleanup/catalogue/linux_programs.h"
#include "cleanup/catalogue/row.h"

namespace tidewell {

namespace {

constexpr auto rows = std::to_array<CatalogueRow>({
    // Developer caches
    {
        .id = "npm-cache",
        .title = "npm cache",
        .detail = "Packages, one-off npx programs and logs that npm has kept. Fetched again when a "
                  "project needs them; your settings and global packages stay.",
        .category = CleanupCategory::developerCaches,
        .products = products::npm,
        .devGroup = "Node & JS",
    },
    {
        .id = "yarn-cache",
        .title = "Yarn cache",
        .detail = "Packages that Yarn has downloaded. Fetched again by the next install.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/yarn", "~/.yarn/berry/cache"},
        .devGroup = "Node & JS",
    },
    {
        .id = "pnpm-cache",
        .title = "pnpm cache",
        .detail = "What pnpm remembers of the package registry. Fetched again when needed; the "
                  "store that your projects link to stays.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/pnpm"},
        .devGroup = "Node & JS",
    },
    {
        .id = "bun-cache",
        .title = "Bun cache",
        .detail = "Packages that Bun has downloaded. Fetched again by the next install.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.bun/install/cache"},
        .devGroup = "Node & JS",
    },
    {
        .id = "deno-cache",
        .title = "Deno cache",
        .detail = "Modules and compiled scripts that Deno has kept. Fetched and compiled again "
                  "when needed; what your scripts have stored stays.",
        .category = CleanupCategory::developerCaches,
        .products = products::deno,
        .devGroup = "Node & JS",
    },
    {
        .id = "node-gyp-cache",
        .title = "node-gyp headers",
        .detail = "Node.js headers for building native modules. Fetched again when one is built.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/node-gyp"},
        .devGroup = "Node & JS",
    },
    {
        .id = "electron-downloads",
        .title = "Electron downloads",
        .detail = "Electron releases and packaging tools, as downloaded. Fetched again by the next "
                  "install or build; finished programs stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/electron", "{cache}/electron-builder"},
        .devGroup = "Node & JS",
    },
    {
        .id = "cypress-binaries",
        .title = "Cypress test runners",
        .detail = "Versions of the Cypress program that projects have asked for. `cypress install` "
                  "fetches the one that a project needs; your tests stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/Cypress"},
        .devGroup = "Node & JS",
    },
    {
        .id = "puppeteer-browsers",
        .title = "Puppeteer browsers",
        .detail = "Browsers downloaded for scripted runs. `npx puppeteer browsers install` fetches "
                  "them again; your own browsers stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/puppeteer"},
        .devGroup = "Node & JS",
    },
    {
        .id = "playwright-browsers",
        .title = "Playwright browsers",
        .detail = "Browsers downloaded for tests. `playwright install` fetches them again; your "
                  "own browsers stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/ms-playwright"},
        .devGroup = "Node & JS",
    },
    {
        .id = "pip-cache",
        .title = "pip cache",
        .detail = "Python packages that pip has downloaded or built. Fetched or built again when "
                  "needed; installed packages stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/pip"},
        .devGroup = "Python",
    },
    {
        .id = "uv-cache",
        .title = "uv cache",
        .detail = "Python packages that uv has downloaded or built. Fetched again by the next "
                  "install; tools and Python versions that uv installed stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/uv"},
        .devGroup = "Python",
    },
    {
        .id = "pipenv-cache",
        .title = "Pipenv cache",
        .detail = "Packages and resolved versions that Pipenv has kept. Fetched again by the next "
                  "install; your environments stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/pipenv"},
        .devGroup = "Python",
    },
    {
        .id = "poetry-cache",
        .title = "Poetry cache",
        .detail = "Packages that Poetry has downloaded. Fetched again by the next install; your "
                  "virtual environments stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/pypoetry/cache", "{cache}/pypoetry/artifacts"},
        .devGroup = "Python",
    },
    {
        .id = "pre-commit-cache",
        .title = "pre-commit hooks",
        .detail = "Hooks that pre-commit has installed for itself. Installed again on the next "
                  "commit, which needs the network; your projects' settings stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/pre-commit"},
        .devGroup = "Python",
    },
    {
        .id = "go-build-cache",
        .title = "Go build cache",
        .detail = "Compiled packages and test results of Go. Made again by the next build, which "
                  "takes longer once.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/go-build"},
        .devGroup = "Go",
    },
    {
        .id = "gopls-cache",
        .title = "gopls index",
        .detail = "What the Go language server has worked out about your code. Worked out again "
                  "when an editor opens it.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/gopls"},
        .devGroup = "Go",
    },
    {
        .id = "golangci-lint-cache",
        .title = "golangci-lint cache",
        .detail = "Results of earlier checks of Go code. Worked out again by the next run.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/golangci-lint"},
        .devGroup = "Go",
    },
    {
        .id = "cargo-cache",
        .title = "Rust / Cargo cache",
        .detail = "Crates, the registry's index and git dependencies, as downloaded. Fetched again "
                  "by the next build. Your installed tools in ~/.cargo/bin and credentials stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.cargo/registry/cache", "~/.cargo/registry/index", "~/.cargo/registry/src",
                  "~/.cargo/git/checkouts", "~/.cargo/git/db"},
        .devGroup = "Rust",
    },
    {
        .id = "rustup-downloads",
        .title = "rustup downloads",
        .detail = "Parts of Rust toolchains as downloaded, and scratch files of their "
                  "installation. Installed toolchains stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.rustup/downloads", "~/.rustup/tmp"},
        .devGroup = "Rust",
    },
    {
        .id = "sccache-cache",
        .title = "sccache cache",
        .detail = "Compiled objects that sccache keeps for the next build. Made again as you "
                  "build, which takes longer once.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/sccache"},
        .devGroup = "Rust",
    },
    {
        .id = "ccache-cache",
        .title = "ccache cache",
        .detail = "Compiled objects that ccache keeps for the next build. Made again as you build, "
                  "which takes longer once; your ccache settings stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/ccache"},
        .products = products::oldCcache,
        .devGroup = "Build output",
    },
    {
        .id = "gradle-caches",
        .title = "Gradle caches",
        .detail = "Dependencies, Gradle releases and daemon logs. Fetched again by the next build. "
                  "Your gradle.properties and init scripts stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.gradle/caches", "~/.gradle/wrapper/dists", "~/.gradle/daemon"},
        .devGroup = "Java & Android",
    },
    {
        .id = "kotlin-native-cache",
        .title = "Kotlin/Native downloads",
        .detail = "Compilers' dependencies and prebuilt libraries of Kotlin/Native. Fetched and "
                  "built again by the next build.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.konan/cache", "~/.konan/dependencies"},
        .devGroup = "Java & Android",
    },
    {
        .id = "maven-repo",
        .title = "Maven repository",
        .detail = "Java libraries that Maven has downloaded, and those you have installed from "
                  "your own builds. The former come back; the latter have to be built again.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.m2/repository"},
        .safety = SafetyLevel::caution,
        .devGroup = "Java & Android",
    },
    {
        .id = "scala-caches",
        .title = "Scala build caches",
        .detail = "Libraries, compilers and Java versions that sbt, Ivy and Coursier have "
                  "downloaded. Fetched again by the next build.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.ivy2/cache", "{cache}/coursier", "~/.sbt/boot"},
        .devGroup = "Java & Android",
    },
    {
        .id = "android-build-caches",
        .title = "Android build caches",
        .detail = "Intermediate files of Android builds and lists of SDK packages. Made and "
                  "fetched again; your SDK, emulators and signing keys stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.android/cache", "~/.android/build-cache"},
        .devGroup = "Java & Android",
    },
    {
        .id = "nuget-cache",
        .title = "NuGet packages",
        .detail = ".NET packages that NuGet has downloaded. Fetched again by the next restore; "
                  "your sources and keys stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.nuget/packages", "{data}/NuGet/http-cache"},
        .devGroup = "Other",
    },
    {
        .id = "composer-cache",
        .title = "Composer cache",
        .detail = "PHP packages that Composer has downloaded. Fetched again by the next install. "
                  "Your tokens and global settings stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/composer", "~/.composer/cache"},
        .devGroup = "PHP",
    },
    {
        .id = "pub-cache",
        .title = "Dart / Pub cache",
        .detail = "Dart and Flutter packages, as downloaded. `pub get` fetches them again; "
                  "your publishing credentials stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.pub-cache/hosted", "~/.pub-cache/git"},
        .devGroup = "Flutter & Dart",
    },
    {
        .id = "rubygems-cache",
        .title = "RubyGems downloads",
        .detail = "Archives of gems that are already unpacked. Fetched again if a gem is to be "
                  "restored; installed gems stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{data}/gem/ruby/*/cache"},
        .devGroup = "Other",
    },
    {
        .id = "hex-cache",
        .title = "Hex cache",
        .detail = "What Hex keeps of Elixir and Erlang packages. Fetched again when needed.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/hex"},
        .devGroup = "Other",
    },
    {
        .id = "bazel-cache",
        .title = "Bazel cache",
        .detail = "Build output and downloads of Bazel. Built again, which can take hours. Many of "
                  "its folders are write-protected: those stay and are named.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/bazel"},
        .safety = SafetyLevel::caution,
        .devGroup = "Build output",
    },
    {
        .id = "vcpkg-cache",
        .title = "vcpkg archives",
        .detail = "C and C++ libraries that vcpkg has built before. Built again when a project "
                  "needs them; what is installed stays.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/vcpkg"},
        .devGroup = "Build output",
    },
    {
        .id = "zig-cache",
        .title = "Zig cache",
        .detail = "Compiled code and packages that Zig shares between projects. Made and fetched "
                  "again by the next build.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/zig"},
        .devGroup = "Build output",
    },
    {
        .id = "cabal-cache",
        .title = "Cabal downloads",
        .detail = "Haskell packages and the package index, as downloaded. `cabal update` and the "
                  "next build fetch them again; built packages stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/cabal"},
        .devGroup = "Build output",
    },
    {
        .id = "homebrew-cache",
        .title = "Homebrew downloads",
        .detail = "What Homebrew has downloaded to install. Fetched again when needed; installed "
                  "programs stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{cache}/Homebrew"},
        .devGroup = "Homebrew",
    },
    {
        .id = "jetbrains-caches",
        .title = "JetBrains IDE caches",
        .detail = "Indexes, logs and scratch files of JetBrains IDEs. Made again when a project "
                  "opens, which takes a while; settings, plugins and local history stay.",
        .category = CleanupCategory::developerCaches,
        .products = products::jetBrains,
        .programs = programs::jetBrains,
        .devGroup = "Editors & AI apps",
    },
    {
        .id = "android-studio-caches",
        .title = "Android Studio caches",
        .detail = "Indexes, logs and scratch files of Android Studio. Made again when a project "
                  "opens, which takes a while; settings, plugins and local history stay.",
        .category = CleanupCategory::developerCaches,
        .products = products::androidStudio,
        .programs = programs::androidStudio,
        .devGroup = "Java & Android",
    },
    {
        .id = "vscode-servers",
        .title = "VS Code servers",
        .detail = "The part of VS Code that runs here while you work from another computer. Sent "
                  "again on the next connection; extensions and settings stay. Disconnect first.",
        .category = CleanupCategory::developerCaches,
        .paths = {"~/.vscode-server/bin", "~/.vscode-server/cli/servers"},
        .safety = SafetyLevel::caution,
        .devGroup = "Editors & AI apps",
    },
    {
        .id = "unity-caches",
        .title = "Unity caches",
        .detail = "Packages and other downloads that Unity shares between projects. Fetched again "
                  "when a project opens; your projects and assets stay.",
        .category = CleanupCategory::developerCaches,
        .paths = {"{config}/unity3d/cache"},
        .devGroup = "Unity",
    },
    // AI caches
    {
        .id = "conda-pkg-cache",
        .title = "Conda package cache",
        .detail = "Packages that conda and mamba have downloaded, not your environments. Fetched "
                  "again when needed; much of it may be shared with environments and frees "
                  "nothing until they go.",
        .category = CleanupCategory::aiCaches,
        .paths = {"~/.conda/pkgs", "~/miniconda3/pkgs", "~/anaconda3/pkgs", "~/miniforge3/pkgs",
                  "~/mambaforge/pkgs", "~/micromamba/pkgs", "~/.local/share/mamba/pkgs"},
        .safety = SafetyLevel::caution,
    },
    // App caches
    {
        .id = "chrome-cache",
        .title = "Google Chrome cache",
        .detail = "Pages, pictures and compiled scripts that Chrome has kept, in every profile. "
                  "Loaded again as you browse; history, passwords and bookmarks stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}/google-chrome", "{cache}/google-chrome-beta",
                  "{cache}/google-chrome-unstable",
                  "~/.var/app/com.google.Chrome/cache/google-chrome",
                  "~/.var/app/com.google.ChromeDev/cache/google-chrome-unstable"},
        .products = products::chrome,
        .programs = programs::chrome,
    },
    {
        .id = "chromium-cache",
        .title = "Chromium cache",
        .detail = "Pages, pictures and compiled scripts that Chromium has kept, in every profile. "
                  "Loaded again as you browse; history, passwords and bookmarks stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}/chromium", "~/snap/chromium/common/.cache/chromium",
                  "~/.var/app/org.chromium.Chromium/cache/chromium",
                  "~/.var/app/io.github.ungoogled_software.ungoogled_chromium/cache/chromium"},
        .products = products::chromium,
        .programs = programs::chromium,
    },
    {
        .id = "brave-cache",
        .title = "Brave cache",
        .detail = "Pages, pictures and compiled scripts that Brave has kept, in every profile. "
                  "Loaded again as you browse; history, passwords and bookmarks stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}/BraveSoftware", "~/snap/brave/common/.cache/BraveSoftware",
                  "~/.var/app/com.brave.Browser/cache/BraveSoftware"},
        .products = products::brave,
        .programs = programs::brave,
    },
    {
        .id = "edge-cache",
        .title = "Microsoft Edge cache",
        .detail = "Pages, pictures and compiled scripts that Edge has kept, in every profile. "
                  "Loaded again as you browse; history, passwords and bookmarks stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}/microsoft-edge", "{cache}/microsoft-edge-beta",
                  "{cache}/microsoft-edge-dev",
                  "~/.var/app/com.microsoft.Edge/cache/microsoft-edge",
                  "~/.var/app/com.microsoft.EdgeDev/cache/microsoft-edge-dev"},
        .products = products::edge,
        .programs = programs::edge,
    },
    {
        .id = "vivaldi-cache",
        .title = "Vivaldi cache",
        .detail = "Pages, pictures and compiled scripts that Vivaldi has kept, in every profile. "
                  "Loaded again as you browse; history, passwords, mail and bookmarks stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}/vivaldi", "{cache}/vivaldi-snapshot",
                  "~/snap/vivaldi/common/.cache/vivaldi",
                  "~/.var/app/com.vivaldi.Vivaldi/cache/vivaldi"},
        .products = products::vivaldi,
        .programs = programs::vivaldi,
    },
    {
        .id = "opera-cache",
        .title = "Opera cache",
        .detail = "Pages, pictures and compiled scripts that Opera has kept. Loaded again as you "
                  "browse; history, passwords and bookmarks stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}/opera", "{cache}/opera-beta", "~/snap/opera/common/.cache/opera",
                  "~/snap/opera-beta/common/.cache/opera-beta",
                  "~/.var/app/com.opera.Opera/cache/opera"},
        .products = products::opera,
        .programs = programs::opera,
    },
    {
        .id = "browser-site-data",
        .title = "Offline copies of websites",
        .detail = "What websites have put aside in Chrome and its relatives to load faster or work "
                  "offline. Sites load it again, but what one has kept for offline use is lost. "
                  "History, passwords and bookmarks stay.",
        .category = CleanupCategory::appCaches,
        .safety = SafetyLevel::caution,
        .products = products::browserSiteData,
        .programs = programs::chromiumFamily,
    },
    {
        .id = "chrome-components",
        .title = "Chrome downloadable components",
        .detail = "Chrome's on-device AI models and optional parts, often several GB. Chrome "
                  "downloads them again if a feature needs them.",
        .category = CleanupCategory::appCaches,
        .products = products::chromeComponents,
        .programs = programs::chrome,
    },
    {
        .id = "firefox-cache",
        .title = "Firefox cache",
        .detail = "Pages, pictures and compiled scripts that Firefox has kept. Loaded again as you "
                  "browse; history, passwords and bookmarks stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}/mozilla", "~/snap/firefox/common/.cache/mozilla",
                  "~/.var/app/org.mozilla.firefox/cache/mozilla"},
        .programs = programs::firefox,
    },
    {
        .id = "thunderbird-cache",
        .title = "Thunderbird cache",
        .detail = "Pictures and pages from messages that Thunderbird has kept. Loaded again when "
                  "you open them; mail, address books and accounts stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}/thunderbird", "~/snap/thunderbird/common/.cache/thunderbird",
                  "~/.var/app/org.mozilla.Thunderbird/cache/thunderbird",
                  "~/.var/app/org.mozilla.thunderbird/cache/thunderbird"},
        .programs = programs::thunderbird,
    },
    {
        .id = "librewolf-cache",
        .title = "LibreWolf cache",
        .detail = "Pages, pictures and compiled scripts that LibreWolf has kept. Loaded again as "
                  "you browse; history, passwords and bookmarks stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}/librewolf", "~/.var/app/io.gitlab.librewolf-community/cache/librewolf"},
        .programs = programs::librewolf,
    },
    {
        .id = "editor-app-caches",
        .title = "Code editor caches",
        .detail = "Web caches, downloaded extension packages and logs of VS Code, VSCodium, "
                  "Cursor, Windsurf and Antigravity. Made again on the next start; settings, "
                  "extensions and unsaved files stay.",
        .category = CleanupCategory::appCaches,
        .products = products::editors,
        .programs = programs::editors,
        .devGroup = "Editors & AI apps",
    },
    {
        .id = "slack-cache",
        .title = "Slack cache",
        .detail = "Pictures, pages and logs that Slack has kept. Loaded again as you use Slack; "
                  "you stay signed in.",
        .category = CleanupCategory::appCaches,
        .products = products::slack,
        .programs = programs::slack,
    },
    {
        .id = "discord-cache",
        .title = "Discord cache",
        .detail = "Pictures, media and logs that Discord has kept. Loaded again as you chat and "
                  "you stay signed in, but favourites that Discord keeps only here may be lost.",
        .category = CleanupCategory::appCaches,
        .safety = SafetyLevel::caution,
        .products = products::discord,
        .programs = programs::discord,
    },
    {
        .id = "teams-cache",
        .title = "Microsoft Teams cache",
        .detail = "Pages, pictures and logs that Teams has kept. Loaded again on the next start; "
                  "you stay signed in.",
        .category = CleanupCategory::appCaches,
        .products = products::teams,
        .programs = programs::teams,
    },
    {
        .id = "signal-cache",
        .title = "Signal cache",
        .detail = "Web cache and logs of Signal. Made again on the next start; messages, "
                  "attachments and your account stay.",
        .category = CleanupCategory::appCaches,
        .products = products::signal,
        .programs = programs::signal,
    },
    {
        .id = "element-cache",
        .title = "Element cache",
        .detail = "Web cache and logs of Element. Made again on the next start; messages, keys and "
                  "your account stay.",
        .category = CleanupCategory::appCaches,
        .products = products::element,
        .programs = programs::element,
    },
    {
        .id = "mattermost-cache",
        .title = "Mattermost cache",
        .detail = "Pages, pictures and logs that Mattermost has kept. Loaded again as you use it; "
                  "you stay signed in.",
        .category = CleanupCategory::appCaches,
        .products = products::mattermost,
        .programs = programs::mattermost,
    },
    {
        .id = "notion-cache",
        .title = "Notion cache",
        .detail = "Pages, pictures and logs in Notion's web cache. Loaded again as you use it; you "
                  "stay signed in, and edits that are still to be sent stay.",
        .category = CleanupCategory::appCaches,
        .products = products::notion,
        .programs = programs::notion,
    },
    {
        .id = "obsidian-cache",
        .title = "Obsidian cache",
        .detail = "Web cache and logs of Obsidian. Made again on the next start; your vaults and "
                  "settings stay.",
        .category = CleanupCategory::appCaches,
        .products = products::obsidian,
        .programs = programs::obsidian,
    },
    {
        .id = "spotify-cache",
        .title = "Spotify cache",
        .detail = "Songs and pages that Spotify has kept from streaming. Streamed again as you "
                  "listen; songs you downloaded and your playlists stay.",
        .category = CleanupCategory::appCaches,
        .products = products::spotify,
        .programs = programs::spotify,
    },
    {
        .id = "telegram-cache",
        .title = "Telegram cache",
        .detail = "Pictures and videos that Telegram has kept from chats. Loaded again when you "
                  "look at them; chats, drafts and saved downloads stay.",
        .category = CleanupCategory::appCaches,
        .products = products::telegram,
        .programs = programs::telegram,
    },
    {
        .id = "zoom-cache",
        .title = "Zoom cache and logs",
        .detail = "Logs of meetings' connections, and Zoom's cache where it is a snap. Written "
                  "again by the next call; recordings and your sign-in stay.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/.zoom/logs", "~/snap/zoom-client/common/.cache",
                  "~/snap/zoom-client/*/.zoom/logs"},
    },
    {
        .id = "steam-caches",
        .title = "Steam caches",
        .detail = "Shaders, web pages, shop pictures and logs that Steam has kept, not your games. "
                  "Made or loaded again; the first start of a game may take longer. Games and "
                  "saves stay.",
        .category = CleanupCategory::appCaches,
        .products = products::steam,
        .programs = programs::steam,
    },
    {
        .id = "flatpak-app-caches",
        .title = "Caches of flatpak applications",
        .detail = "What flatpak applications keep in the folder that is meant for caches. Most of "
                  "them make it again; not every application keeps to that. Quit them first.",
        .category = CleanupCategory::appCaches,
        .paths = {"~/.var/app/*/cache"},
        .safety = SafetyLevel::caution,
        .kind = TargetKind::sweep,
        .users = PathUsers::applicationOfPath,
    },
    {
        .id = "tagged-caches",
        .title = "Caches marked as such",
        .detail = "Folders in your cache folder whose own programs have marked them as caches, to "
                  "be left out of backups and made again. The programs make what they need.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}"},
        .kind = TargetKind::taggedSweep,
    },
    {
        .id = "other-app-caches",
        .title = "Other caches",
        .detail = "All else in your cache folder. Most programs make it again, but some keep here "
                  "what they have nowhere else. Look at what it holds before you pick it.",
        .category = CleanupCategory::appCaches,
        .paths = {"{cache}"},
        .safety = SafetyLevel::caution,
        .kind = TargetKind::sweep,
    },
    // System
    {
        .id = "thumbnails",
        .title = "Thumbnails",
        .detail = "Small previews that the file manager shows. Drawn again when you open a folder; "
                  "your pictures and films stay.",
        .category = CleanupCategory::system,
        .paths = {"{cache}/thumbnails", "~/.thumbnails"},
    },
    {
        .id = "shader-caches",
        .title = "Shader caches",
        .detail = "What graphics drivers have compiled for games and programs. Compiled again as "
                  "you play, which may stutter for a while. Quit games first.",
        .category = CleanupCategory::system,
        .paths = {"{cache}/mesa_shader_cache*", "{cache}/nvidia", "~/.nv/ComputeCache",
                  "{cache}/qtshadercache-*", "{cache}/radv_builtin_shaders*"},
        .safety = SafetyLevel::caution,
    },
    {
        .id = "software-centre-cache",
        .title = "Software centre cache",
        .detail = "Pictures, reviews and lists that GNOME Software and Discover show. Loaded again "
                  "when you open them; installed programs stay.",
        .category = CleanupCategory::system,
        .paths = {"{cache}/gnome-software", "{cache}/discover"},
    },
    {
        .id = "aur-helper-caches",
        .title = "AUR build folders",
        .detail = "Build files, sources and packages that yay and paru have kept. Fetched and "
                  "built again by the next update; installed programs stay. Changes you made to "
                  "build files there are lost.",
        .category = CleanupCategory::system,
        .paths = {"{cache}/yay", "{cache}/paru"},
        .safety = SafetyLevel::caution,
    },
    {
        .id = "user-logs",
        .title = "User logs",
        .detail = "Messages of earlier desktop sessions. Only needed to look into a fault; new "
                  "ones are written as needed.",
        .category = CleanupCategory::system,
        .paths = {"~/.xsession-errors*", "{data}/xorg/Xorg.0.log.old", "{data}/xorg/Xorg.1.log.old",
                  "{data}/xorg/Xorg.2.log.old", "{cache}/upstart"},
    },
    {
        .id = "user-temp",
        .title = "Temporary files",
        .detail = "Your own scratch space. Quit large programs first, since some keep work in "
                  "progress here.",
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
        .paths = {"{data}/Trash/files"},
        .safety = SafetyLevel::caution,
        .kind = TargetKind::trash,
    },
});

static_assert(idsAreUnique(rows));

/// What a running program in a sandbox works with.
constexpr auto neverSwept = std::to_array<std::string_view>({"~/.var/app/*/cache/tmp"});

constexpr auto modelCaches = std::to_array<CatalogueRow>({
    {
        .id = "hf-hub-cache",
        .title = "Hugging Face model cache",
        .detail = "Model weights that transformers, diffusers and others have downloaded. They can "
                  "be downloaded again, but are large and slow to fetch; a model that its makers "
                  "have withdrawn is not to be had again. Your login token stays.",
        .category = CleanupCategory::aiCaches,
        .paths = {"{cache}/huggingface/hub", "{cache}/huggingface/xet"},
        .safety = SafetyLevel::caution,
    },
    {
        .id = "torch-hub-cache",
        .title = "PyTorch model cache",
        .detail = "Pretrained weights that torch.hub has downloaded. Downloaded again when a model "
                  "needs them; checkpoints that you saved elsewhere stay.",
        .category = CleanupCategory::aiCaches,
        .paths = {"{cache}/torch/hub/checkpoints"},
        .safety = SafetyLevel::caution,
    },
    {
        .id = "keras-model-cache",
        .title = "Keras model cache",
        .detail = "Pretrained Keras and TensorFlow weights. Downloaded again when a model needs "
                  "them; your datasets and settings stay.",
        .category = CleanupCategory::aiCaches,
        .paths = {"~/.keras/models"},
        .safety = SafetyLevel::caution,
    },
});

}  // namespace

Catalogue linuxCatalogue() {
    return {.rows = rows,
            .neverSwept = neverSwept,
            .modelCaches = modelCaches,
            .sweepCare = SweepCare::byContent};
}

}  // namespace tidewell
