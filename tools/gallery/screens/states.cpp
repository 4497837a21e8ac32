#include "screens/states.h"

namespace tidewell::gallery {

std::vector<ScreenState> screenStates() {
    std::vector<ScreenState> all;
    for (const auto& section : {homeStates(), cleanStates(), performanceStates(), devModeStates(),
                                appsStates(), deepScanStates(), advisorStates(), welcomeStates()})
        all.insert(all.end(), section.begin(), section.end());
    return all;
}

}  // namespace tidewell::gallery
