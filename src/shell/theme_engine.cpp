#include "shell/theme_engine.h"

#include <array>

#include "kit/words.h"
#include "platform/volume.h"
#include "shell/activation.h"

namespace tidewell {

namespace {

struct HealthLevel {
    double atLeast;  ///< the share of the volume that is free
    ThemePalette palette;
};

constexpr std::array levels{
    HealthLevel{0.30,
                {.label = "Healthy",
                 .message = "Loads of room. A quick scan keeps it that way.",
                 .healthRGB = {0.24, 0.88, 0.50}}},
    HealthLevel{0.15,
                {.label = "Filling up",
                 .message = "Filling up. One scan usually claws a lot back.",
                 .healthRGB = {0.96, 0.78, 0.29}}},
    HealthLevel{0.08,
                {.label = "Running low",
                 .message = "Getting tight. Time to drop some dead weight.",
                 .healthRGB = {0.98, 0.55, 0.24}}},
};

ThemePalette critical(System system) {
    return {.label = "Critical",
            .message = wordsOf(system).criticalSpace,
            .healthRGB = {0.96, 0.26, 0.37}};
}

double share(ByteCount free, ByteCount total) {
    return total < 1 ? 0.0 : static_cast<double>(free) / static_cast<double>(total);
}

}  // namespace

ThemePalette themePalette(double freeFraction, System system) {
    for (const auto& level : levels)
        if (freeFraction >= level.atLeast) return level.palette;
    return critical(system);
}

ThemeEngine::ThemeEngine(const Host& host, Signal& didBecomeActive)
    : home_(host.home), system_(host.system) {
    refresh();
    activationObserver_ = onActivation(didBecomeActive, *this, &ThemeEngine::refresh);
}

double ThemeEngine::freeFraction() const {
    return share(freeBytes(), totalBytes());
}

void ThemeEngine::refresh() {
    const auto capacity = volumeCapacity(home_);
    if (!capacity || capacity->total < 1) return;
    freeBytes = capacity->available;
    totalBytes = capacity->total;
    palette = themePalette(freeFraction(), system_);
}

}  // namespace tidewell
