#include "screens/app_icons.h"
#include "screens/findings.h"
#include "screens/states.h"

namespace tidewell::gallery {

namespace {

using Phase = AppsViewModel::Phase;

constexpr ByteCount megabyte = 1'000'000;

void findAppsWithIcons(Sample& sample) {
    lookLike(sample, "Sketchpad", QColor(240, 150, 60));
    lookLike(sample, "Tidal Studio", QColor(70, 120, 240));
    lookLike(sample, "Film Cutter", QColor(200, 60, 90));
    findApps(*sample.view);
    sample.view->mode = Mode::apps;
}

void prepareUninstall(Sample& sample, std::vector<LeftoverFile> leftovers) {
    findAppsWithIcons(sample);
    sample.view->appsModel->pendingPlan = UninstallPlan{
        .app = sample.view->appsModel->apps().front(), .leftovers = std::move(leftovers)};
}

LeftoverFile leftover(const std::string& name, const std::string& category, ByteCount size) {
    return {.id = name, .url = "/nowhere/" + name, .category = category, .sizeBytes = size};
}

const std::vector<ScreenState> states = {
    {"apps-start", [](Sample& sample) { sample.view->mode = Mode::apps; }},
    {"apps-scanning",
     [](Sample& sample) {
         sample.view->appsModel->phase = Phase::scanning;
         sample.view->appsModel->scanProgress = 0.6;
         sample.view->mode = Mode::apps;
     }},
    {"apps-list", findAppsWithIcons},
    {"apps-sort-menu", findAppsWithIcons, "Least used"},
    {"apps-hunting",
     [](Sample& sample) {
         findAppsWithIcons(sample);
         sample.view->appsModel->isBuildingPlan = true;
     }},
    {"apps-moved",
     [](Sample& sample) {
         findAppsWithIcons(sample);
         sample.view->appsModel->lastResult = UninstallResult{.appName = "Postcards",
                                                              .movedCount = 4,
                                                              .freedBytes = 812 * megabyte,
                                                              .failed = {},
                                                              .appBundleMoved = true,
                                                              .moved = {}};
     }},
    {"apps-not-moved",
     [](Sample& sample) {
         findAppsWithIcons(sample);
         sample.view->appsModel->lastResult =
             UninstallResult{.appName = "Film Cutter",
                             .movedCount = 0,
                             .freedBytes = 0,
                             .failed = {"Film Cutter is still running. Quit it and try again"},
                             .appBundleMoved = false,
                             .moved = {}};
     }},
    {"apps-uninstall",
     [](Sample& sample) {
         prepareUninstall(sample,
                          {leftover("Sketchpad", "Application Support", 640 * megabyte),
                           leftover("com.example.Sketchpad", "Cache", 212 * megabyte),
                           leftover("com.example.Sketchpad.plist", "Preferences", megabyte / 9),
                           leftover("com.example.Sketchpad.savedState", "Saved State", megabyte)});
     }},
    {"apps-uninstall-clean", [](Sample& sample) { prepareUninstall(sample, {}); }},
};

}  // namespace

std::vector<ScreenState> appsStates() {
    return states;
}

}  // namespace tidewell::gallery
