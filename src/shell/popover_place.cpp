#include "shell/popover_place.h"

#include <algorithm>

namespace tidewell {

namespace {

/// Between the popover and its item, or the screen's edge.
constexpr int gap = 6;

/// The start nearest to `wanted` at which a length still fits; the screen's own start if none does.
int fitting(int wanted, int length, int start, int extent) {
    return std::max(start + gap, std::min(wanted, start + extent - length - gap));
}

}  // namespace

Area popoverPlace(const Area& item, int width, int height, const Area& screen) {
    const bool isItemInUpperHalf = item.y + item.height / 2 < screen.y + screen.height / 2;
    const int y = isItemInUpperHalf ? item.y + item.height + gap : item.y - height - gap;
    const int x = item.x + (item.width - width) / 2;
    return {.x = fitting(x, width, screen.x, screen.width),
            .y = fitting(y, height, screen.y, screen.height),
            .width = width,
            .height = height};
}

}  // namespace tidewell
