#include "screens/states.h"

#include <algorithm>
#include <string_view>

namespace tidewell::gallery {

const std::vector<ScreenState>& screenStates() {
    static const auto joined = [] {
        std::vector<ScreenState> all;
        for (const auto& section :
             {homeStates(), cleanStates(), performanceStates(), devModeStates(), appsStates(),
              deepScanStates(), advisorStates(), welcomeStates()})
            all.insert(all.end(), section.begin(), section.end());
        return all;
    }();
    return joined;
}

const ScreenState& state(const char* name) {
    const auto found = std::ranges::find(
        screenStates(), std::string_view(name),
        [](const ScreenState& candidate) { return std::string_view(candidate.name); });
    if (found == screenStates().end()) qFatal("there is no state %s", name);
    return *found;
}

}  // namespace tidewell::gallery
