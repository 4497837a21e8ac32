#include "screens/states.h"

namespace tidewell::gallery {

namespace {

const std::vector<ScreenState> states = {
    {"welcome-first-run", [](Sample& sample) { sample.view->hasOnboarded = false; }},
    {"welcome-about", [](Sample& sample) { sample.view->showAbout = true; }},
};

}  // namespace

std::vector<ScreenState> welcomeStates() {
    return states;
}

}  // namespace tidewell::gallery
