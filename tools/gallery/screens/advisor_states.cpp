#include "screens/findings.h"
#include "screens/states.h"

namespace tidewell::gallery {

namespace {

using Phase = AdvisorViewModel::Phase;

void find(Sample& sample) {
    findAdvisorWins(*sample.view);
    sample.view->mode = Mode::advisor;
}

void show(Sample& sample, Phase phase) {
    sample.view->advisorModel->phase = phase;
    sample.view->mode = Mode::advisor;
}

const std::vector<ScreenState> states = {
    {"advisor-start", [](Sample& sample) { show(sample, Phase::idle); }},
    {"advisor-scanning", [](Sample& sample) { show(sample, Phase::scanning); }},
    {"advisor-list", find},
    {"advisor-busy",
     [](Sample& sample) {
         find(sample);
         auto& runtimes = sample.view->advisorModel->findings.mutate().runtimes;
         runtimes[1].deletable = false;
         sample.view->advisorModel->busyAction = runtimes[0].id;
     },
     nullptr, System::macOS},
    {"advisor-message",
     [](Sample& sample) {
         find(sample);
         sample.view->advisorModel->findings.mutate().runtimes.clear();
         sample.view->advisorModel->busyAction = std::string(snapshotsFinding);
         sample.view->advisorModel->lastMessage =
             "Deleted iOS 16.4. If the space doesn't show up, a restart releases it.";
     },
     nullptr, System::macOS},
    {"advisor-asks",
     [](Sample& sample) {
         find(sample);
         sample.view->advisorModel->findings.mutate().runtimes.resize(1);
     },
     "Delete…", System::macOS},
    {"advisor-all-clear", [](Sample& sample) { show(sample, Phase::list); }},
};

}  // namespace

std::vector<ScreenState> advisorStates() {
    return states;
}

}  // namespace tidewell::gallery
