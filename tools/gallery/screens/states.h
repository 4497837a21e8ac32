#pragma once

#include <optional>
#include <vector>

#include "screens/sample.h"

namespace tidewell::gallery {

/// One picture: `name` is its file's, `setUp` brings the sample to where it is drawn.
struct ScreenState {
    const char* name;
    void (*setUp)(Sample& sample);
    /// The name of a control that is pressed before the picture is taken, if any, or several in a
    /// row, with " > " between them.
    const char* pressed = nullptr;
    /// The system whose machines alone have it; none if all do.
    std::optional<System> system = {};

    bool isOf(System machine) const { return !system || system == machine; }
};

// The states of each section's screens, one file of this folder a section.
std::vector<ScreenState> homeStates();
std::vector<ScreenState> cleanStates();
std::vector<ScreenState> performanceStates();
std::vector<ScreenState> welcomeStates();
std::vector<ScreenState> devModeStates();
std::vector<ScreenState> appsStates();
std::vector<ScreenState> deepScanStates();
std::vector<ScreenState> advisorStates();

/// All of them.
const std::vector<ScreenState>& screenStates();
/// The one of that name, which there is.
const ScreenState& state(const char* name);

}  // namespace tidewell::gallery
