#include "motion/passages.h"

namespace tidewell::gallery {

namespace {

const std::vector<Passage> all = {
    {"view", "home-after-scans", 320, {.to = "apps-list"}},
    {"view-of-the-same-tool", "clean-review", 320, {.to = "clean-cleaning"}},
    {"section", "apps-list", 500, {.to = "performance-memory"}},
    {"first-scan", "clean-idle", 400, {.to = "clean-scanning"}},
    {"progress",
     "clean-scanning",
     400,
     {.change = [](Sample& sample) { sample.view->cleanupModel->scanProgress = 0.71; }}},
    {"scan-begins", "apps-start", 320, {.to = "apps-scanning"}},
    {"scan-ends", "apps-scanning", 320, {.to = "apps-list"}},
    {"bar",
     "deep-scan-scanning",
     320,
     {.change = [](Sample& sample) { sample.view->deepScanModel->scanProgress = 0.84; }}},
    {"smart-scan-begins", "home-after-scans", 500, {.to = "smart-scan-begins"}},
    {"smart-scan-goes-on", "smart-scan-begins", 500, {.to = "smart-scan-advisor"}},
    {"smart-scan-ends", "smart-scan-advisor", 900, {.to = "smart-scan-done"}},
    {"clean-ends", "clean-cleaning", 2000, {.to = "clean-done"}},
    {"banner", "apps-list", 320, {.to = "apps-moved"}},
    {"rows-go",
     "clean-review",
     320,
     {.change =
          [](Sample& sample) {
              auto& items = sample.view->cleanupModel->items.mutate();
              items.erase(items.begin() + 1, items.begin() + 3);
          }}},
    {"card-goes",
     "deep-scan-safe",
     320,
     {.change =
          [](Sample& sample) {
              auto& items = sample.view->deepScanModel->items.mutate();
              items.erase(items.begin());
          }}},
    {"sheet", "apps-list", 320, {.to = "apps-uninstall"}},
    {"sheet-goes", "apps-uninstall", 320, {.pressed = "Cancel"}},
    {"menu", "apps-list", 320, {.pressed = "Least used"}},
    {"tabs", "performance-memory", 320, {.pressed = "Startup"}},
    {"hover", "clean-review", 220, {.pointedAt = "Clean Up"}},
    {"donut", "performance-scanning", 500, {.to = "performance-memory"}},
    {"intro",
     "welcome-first-run",
     13000,
     {.change = [](Sample& sample) { sample.view->finishOnboarding(Intro::play); },
      .hasFilm = true}},
};

}  // namespace

const std::vector<Passage>& passages() {
    return all;
}

}  // namespace tidewell::gallery
