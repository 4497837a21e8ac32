#include "screens/findings.h"
#include "screens/states.h"

namespace tidewell::gallery {

namespace {

using Phase = DevModeViewModel::Phase;

void find(Sample& sample) {
    findDevItems(*sample.view);
    sample.view->mode = Mode::devMode;
}

void show(Sample& sample, Phase phase) {
    sample.view->devModeModel->phase = phase;
    sample.view->mode = Mode::devMode;
}

const std::vector<ScreenState> states = {
    {"dev-mode-start", [](Sample& sample) { show(sample, Phase::idle); }},
    {"dev-mode-scanning",
     [](Sample& sample) {
         sample.view->devModeModel->scanProgress = 0.52;
         show(sample, Phase::scanning);
     }},
    {"dev-mode-review", find},
    {"dev-mode-build-output", find, "Build output"},
    {"dev-mode-left-out",
     [](Sample& sample) {
         find(sample);
         sample.view->devModeModel->leftOut = someLeftOut();
     }},
    {"dev-mode-models", find, "Large AI models"},
    {"dev-mode-nothing", [](Sample& sample) { show(sample, Phase::review); }},
    {"dev-mode-cleaning",
     [](Sample& sample) {
         sample.view->devModeModel->cleanProgress = 0.3;
         show(sample, Phase::cleaning);
     }},
    {"dev-mode-done",
     [](Sample& sample) {
         sample.view->devModeModel->freedBytes = 21'480'000'000;
         show(sample, Phase::done);
     }},
    {"dev-mode-done-not-all",
     [](Sample& sample) {
         sample.view->devModeModel->freedBytes = 480'000'000;
         sample.view->devModeModel->failedTitles =
             std::vector<std::string>{someTitles(sample.system())[1], "target · engine"};
         show(sample, Phase::done);
     }},
};

}  // namespace

std::vector<ScreenState> devModeStates() {
    return states;
}

}  // namespace tidewell::gallery
