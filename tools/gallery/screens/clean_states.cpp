#include "screens/findings.h"
#include "screens/states.h"

namespace tidewell::gallery {

namespace {

using Phase = CleanupViewModel::Phase;

void finish(Sample& sample, ByteCount freed) {
    auto& model = *sample.view->cleanupModel;
    model.freedBytes = freed;
    model.freeSpaceBefore = 182'402'719'744;
    model.freeSpaceAfter = 182'402'719'744 + freed;
    model.phase = Phase::done;
    sample.view->mode = Mode::clean;
}

const std::vector<ScreenState> states = {
    {"clean-idle", [](Sample& sample) { sample.view->mode = Mode::clean; }},
    {"clean-scanning",
     [](Sample& sample) {
         sample.view->cleanupModel->phase = Phase::scanning;
         sample.view->cleanupModel->scanProgress = 0.43;
         sample.view->cleanupModel->currentTarget = someTitles(sample.system())[1];
         sample.view->mode = Mode::clean;
     }},
    {"clean-review",
     [](Sample& sample) {
         findJunk(*sample.view);
         sample.view->mode = Mode::clean;
     }},
    {"clean-review-nothing-picked",
     [](Sample& sample) {
         findJunk(*sample.view);
         sample.view->cleanupModel->selectAll(Tick::off);
         sample.view->mode = Mode::clean;
     }},
    {"clean-review-left-out",
     [](Sample& sample) {
         findJunk(*sample.view);
         sample.view->cleanupModel->leftOut = someLeftOut();
         sample.view->mode = Mode::clean;
     }},
    {"clean-review-empty",
     [](Sample& sample) {
         sample.view->cleanupModel->phase = Phase::review;
         sample.view->mode = Mode::clean;
     }},
    {"clean-cleaning",
     [](Sample& sample) {
         findJunk(*sample.view);
         sample.view->cleanupModel->phase = Phase::cleaning;
         sample.view->cleanupModel->cleanProgress = 0.62;
         sample.view->mode = Mode::clean;
     }},
    {"clean-done", [](Sample& sample) { finish(sample, 23'481'700'000); }},
    {"clean-done-nothing-freed", [](Sample& sample) { finish(sample, 0); }},
    {"clean-done-failures",
     [](Sample& sample) {
         sample.view->cleanupModel->failedTitles = someTitles(sample.system());
         finish(sample, 1'290'000'000);
     }},
};

}  // namespace

std::vector<ScreenState> cleanStates() {
    return states;
}

}  // namespace tidewell::gallery
