#pragma once

#include <vector>

#include "screens/sample.h"

namespace tidewell::gallery {

/// What sets something going: one of the first four.
struct Cause {
    const char* to = nullptr;  ///< a further state
    void (*change)(Sample& sample) = nullptr;
    const char* pressed = nullptr;  ///< the name of a control
    const char* pointedAt = nullptr;
    bool hasFilm = false;  ///< which knows no time but the clock's
};

/// Something that moves in the window.
struct Passage {
    const char* name;
    const char* from;  ///< a state of the gallery
    int lasts;         ///< milliseconds until all stands still again
    Cause cause;
};

const std::vector<Passage>& passages();

}  // namespace tidewell::gallery
