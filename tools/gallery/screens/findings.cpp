#include "screens/findings.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>

#include "cleanup/target_catalogue.h"
#include "devmode/dev_targets.h"

namespace tidewell::gallery {

namespace {

constexpr ByteCount megabyte = 1'000'000;

CleanupItem junk(CleanupTarget target, ByteCount size) {
    const bool isSafe = target.safety == SafetyLevel::safe;
    return {.target = std::move(target),
            .resolvedPaths = {"/nowhere"},
            .sizeBytes = size,
            .isSelected = isSafe};
}

CleanupTarget projectFolder(const std::string& name, const std::string& project,
                            SafetyLevel safety) {
    return {.id = "artifact:" + name + ":" + project,
            .title = name + " · " + project,
            .detail = "Build output. Re-created by the next build. In Code/" + project + ".",
            .category = CleanupCategory::developerCaches,
            .safety = safety,
            .paths = {"/nowhere"}};
}

InstalledApp app(const Host& host, const std::string& name, ByteCount size, int daysUnused) {
    return {.id = "com.example." + name,
            .name = name,
            .url = host.systemPath("/Applications/" + name + ".app"),
            .bundleID = "com.example." + name,
            .version = "4.2",
            .sizeBytes = size,
            .lastUsed = std::chrono::system_clock::now() - std::chrono::days(daysUnused)};
}

BigItem bigItem(const std::string& name, const std::string& location, ByteCount size,
                BigItem::Kind kind, std::optional<std::string> note = {}) {
    return {.id = "/nowhere/" + name,
            .name = name,
            .location = location,
            .sizeBytes = size,
            .isDirectory = !name.ends_with(".dmg") && !name.ends_with(".deb"),
            .kind = kind,
            .note = std::move(note),
            .reclaimCommand = kind == BigItem::Kind::container
                                  ? std::optional("docker system prune")
                                  : std::nullopt};
}

std::vector<Finding> toolFindings() {
    return {{.id = "flatpak-runtimes",
             .symbol = "shippingbox",
             .title = "Unused Flatpak runtimes",
             .detail = "3 runtimes that none of your flatpaks uses any more. Flatpak downloads one "
                       "again if an app needs it.",
             .sizeBytes = 2'480 * megabyte,
             .action = FindingAction::run,
             .actionLabel = "Uninstall"},
            {.id = "journal",
             .symbol = "clock.arrow.circlepath",
             .title = "System journal",
             .detail = "The system's log takes 4.1 GB. The newest 500 MB of it are more than most "
                       "will ever read.",
             .sizeBytes = 3'600 * megabyte,
             .action = FindingAction::copy,
             .command = "sudo journalctl --vacuum-size=500M"},
            {.id = "snapshots",
             .symbol = "clock.arrow.circlepath",
             .title = "Snapshots",
             .detail = "12 snapshots of this disk keep what was removed since.",
             .sizeBytes = {},
             .severity = FindingSeverity::notice}};
}

}  // namespace

std::vector<std::string> someTitles(System system) {
    if (system == System::linux) return {"Trash", "npm cache", "Firefox cache"};
    return {"Trash", "Xcode DerivedData", "Old iOS backups"};
}

void findJunk(const ContentView& view) {
    CleanupItems items = {
        junk(projectFolder("node_modules", "shop-frontend", SafetyLevel::safe), 1480 * megabyte),
        junk(projectFolder("target", "engine", SafetyLevel::caution), 930 * megabyte),
        junk(
            projectFolder("node_modules",
                          "a-project-whose-name-is-much-longer-than-any-row-of-this-window-is-wide",
                          SafetyLevel::safe),
            212 * megabyte),
    };
    ByteCount size = 8460 * megabyte;
    for (std::size_t index = 0; auto& target : cleanupCatalogue(view.host())) {
        if (index++ % 2 != 0) continue;
        items.push_back(junk(std::move(target), size));
        size = size * 4 / 5;
    }
    std::ranges::stable_sort(items, std::ranges::greater(), &CleanupItem::sizeBytes);
    view.cleanupModel->items = std::move(items);
    view.cleanupModel->phase = CleanupViewModel::Phase::review;
}

void findDevItems(const ContentView& view) {
    CleanupItems items = {
        junk(projectFolder("node_modules", "shop-frontend", SafetyLevel::safe), 1480 * megabyte),
        junk(projectFolder("target", "engine", SafetyLevel::caution), 930 * megabyte),
        junk(projectFolder("build", "engine", SafetyLevel::caution), 470 * megabyte),
    };
    ByteCount size = 9120 * megabyte;
    for (auto& target : devTargets(view.host())) {
        items.push_back(junk(std::move(target), size));
        size = size * 5 / 6;
    }
    std::ranges::stable_sort(items, std::ranges::greater(), &CleanupItem::sizeBytes);
    view.devModeModel->items = std::move(items);
    view.devModeModel->models = {
        {.id = "/nowhere/.ollama/models",
         .tool = "Ollama models",
         .sizeBytes = 48'300 * megabyte,
         .note = "Downloaded weights, and models you made with your own Modelfiles."},
        {.id = "/nowhere/huggingface",
         .tool = "Hugging Face cache",
         .sizeBytes = 12'700 * megabyte,
         .note =
             "Weights and datasets. What you uploaded is elsewhere; what you trained may be here."},
    };
    view.devModeModel->phase = DevModeViewModel::Phase::review;
}

LeftOut someLeftOut() {
    return {.silentMounts = {"/home/ada/Server"}, .unreadFolders = 3};
}

void findApps(const ContentView& view) {
    const auto& host = view.host();
    std::vector<InstalledApp> apps = {
        app(host, "Sketchpad", 1240 * megabyte, 2),
        app(host, "Tidal Studio", 6310 * megabyte, 140),
        app(host, "Notebook", 310 * megabyte, 0),
        app(host, "Skyline Maps", 890 * megabyte, 420),
        app(host, "Mail Courier", 164 * megabyte, 1),
        app(host, "Film Cutter", 3870 * megabyte, 95),
        app(host, "Paint Shop Updater", 48 * megabyte, 600),
        app(host, "The Application With A Name That Fits No Card Of Any Width", 12 * megabyte, 33),
    };
    apps.back().lastUsed.reset();
    apps.back().version = "2026.11.23-release-candidate+build.4711";
    view.appsModel->apps = std::move(apps);
    view.appsModel->phase = AppsViewModel::Phase::list;
}

void findBigItems(const ContentView& view) {
    using Kind = BigItem::Kind;
    const bool isLinux = view.host().system == System::linux;
    const std::string caches = isLinux ? "~/.cache" : "~/Library/Caches";
    const std::string disks =
        isLinux ? "~/.docker/desktop/vms" : "~/Library/Containers/com.docker.docker/Data/vms";
    view.deepScanModel->items = {
        bigItem("Docker", disks, 41'200 * megabyte, Kind::container,
                "Docker's VM disk: every image, container and volume. Reclaim from inside Docker, "
                "don't delete this file."),
        bigItem("Holiday 2019", isLinux ? "~/Videos" : "~/Movies", 18'600 * megabyte,
                Kind::personal),
        bigItem(isLinux ? "studio_4.2_amd64.deb" : "Install Studio.dmg", "~/Downloads",
                6'240 * megabyte, Kind::installer,
                isLinux ? "Debian package. Safe to trash once you've installed the app."
                        : "Disk image. Safe to trash once the app is installed."),
        bigItem("com.example.Browser", caches, 2'870 * megabyte, Kind::cache,
                "Browser cache. Refills as you browse."),
        bigItem("target", "~/Code/engine", 2'110 * megabyte, Kind::rebuildable,
                "Build output. Re-created by the next build."),
        bigItem("a-folder-with-a-name-that-is-very-much-longer-than-its-card-is-wide-and-then-some",
                caches + "/and/it/lies/deep/below/folders/that/have/long/names/too/each/one",
                412 * megabyte, Kind::cache),
        bigItem("Mail Courier", isLinux ? "~/.config" : "~/Library/Application Support",
                390 * megabyte, Kind::appData),
        bigItem("scratch", "~/Public", 96 * megabyte, Kind::other),
    };
    view.deepScanModel->phase = DeepScanViewModel::Phase::list;
}

std::vector<TrashedThing> someTrash() {
    const auto thing = [](const std::string& name, std::optional<std::string> origin, int days,
                          ByteCount size) {
        const auto deletedAt = std::chrono::system_clock::now() - std::chrono::days(days);
        return TrashedThing{.item = {.folder = "/nowhere/Trash",
                                     .name = name,
                                     .path = "/nowhere/Trash/files/" + name,
                                     .origin = std::move(origin),
                                     .deletedAt = deletedAt,
                                     .isFolder = false,
                                     .identity = {}},
                            .sizeBytes = size};
    };
    return {
        thing("harbour.mkv", "/nowhere/Videos/harbour.mkv", 0, 4'380 * megabyte),
        thing("long",
              "/nowhere/it/lies/deep/below/folders/that/have/long/names/too/each/one/a name that "
              "is very much longer than its card is wide, and then some, and more",
              9, 310 * megabyte),
        thing("stray.iso", std::nullopt, 420, 96 * megabyte)};
}

void findAdvisorWins(const ContentView& view) {
    using namespace std::chrono;
    const auto lastUsed = system_clock::now() - days(200);
    view.advisorModel->phase = AdvisorViewModel::Phase::list;
    if (view.host().system == System::linux) {
        view.advisorModel->findings.mutate().probed = toolFindings();
        return;
    }
    view.advisorModel->findings = Findings{
        .runtimes = {{.id = "A1",
                      .name = "iOS 16.4",
                      .build = "20E247",
                      .sizeBytes = 7'230 * megabyte,
                      .lastUsed = lastUsed,
                      .deviceNames = {"iPhone 14"}},
                     {.id = "A2",
                      .name = "iOS 17.5",
                      .build = "21F79",
                      .sizeBytes = 7'890 * megabyte,
                      .lastUsed = {},
                      .deviceNames = {}}},
        .unavailableSims = 4,
        .snapshotCount = 3,
        .dockerBytes = 41'200 * megabyte,
    };
}

}  // namespace tidewell::gallery
