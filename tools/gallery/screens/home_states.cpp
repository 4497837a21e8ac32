#include "screens/findings.h"
#include "screens/states.h"

#include <chrono>

namespace tidewell::gallery {

namespace {

using Phase = SmartScanController::Phase;

void cleanEarlier(const Sample& sample) {
    using namespace std::chrono;
    UserDefaults defaults(sample.machine.host().configurationDirectory);
    defaults.add(totalFreedBytesKey, 23'481'700'000);
    defaults.setReal(
        lastCleanupAtKey,
        duration<double>((system_clock::now() - hours(30)).time_since_epoch()).count());
}

void findAll(const ContentView& view) {
    findJunk(view);
    findApps(view);
    findBigItems(view);
    findAdvisorWins(view);
}

const std::vector<ScreenState> states = {
    {"home-first-start", [](Sample&) {}},
    {"home-after-scans",
     [](Sample& sample) {
         cleanEarlier(sample);
         findAll(*sample.view);
     }},
    {"home-without-access",
     [](Sample& sample) { sample.view->permissions->hasFullDiskAccess = false; }, nullptr,
     System::macOS},
    {"home-disk-full",
     [](Sample& sample) {
         auto& theme = *sample.view->theme;
         theme.freeBytes = 9'204'000'000;
         theme.palette = themePalette(theme.freeFraction(), sample.system());
     }},
    {"smart-scan-begins",
     [](Sample& sample) {
         sample.view->cleanupModel->phase = CleanupViewModel::Phase::scanning;
         sample.view->cleanupModel->scanProgress = 0.34;
         sample.view->cleanupModel->currentTarget = someTitles(sample.system())[1];
         sample.view->smartScan->phase = Phase::clean;
     }},
    {"smart-scan-advisor",
     [](Sample& sample) {
         findJunk(*sample.view);
         findApps(*sample.view);
         findBigItems(*sample.view);
         sample.view->advisorModel->phase = AdvisorViewModel::Phase::scanning;
         sample.view->smartScan->phase = Phase::advisor;
     }},
    {"smart-scan-done",
     [](Sample& sample) {
         findAll(*sample.view);
         sample.view->smartScan->phase = Phase::done;
     }},
    {"smart-scan-stopped",
     [](Sample& sample) {
         findJunk(*sample.view);
         sample.view->smartScan->phase = Phase::done;
         sample.view->smartScan->stopped = true;
     }},
    {"smart-scan-all-clear",
     [](Sample& sample) {
         sample.view->cleanupModel->phase = CleanupViewModel::Phase::review;
         sample.view->appsModel->phase = AppsViewModel::Phase::list;
         sample.view->deepScanModel->phase = DeepScanViewModel::Phase::list;
         sample.view->advisorModel->phase = AdvisorViewModel::Phase::list;
         sample.view->smartScan->phase = Phase::done;
     }},
};

}  // namespace

std::vector<ScreenState> homeStates() {
    return states;
}

}  // namespace tidewell::gallery
