#include "shell/popover_place.h"

#include <gtest/gtest.h>

namespace tidewell {

static void PrintTo(const Area& area, std::ostream* out) {
    *out << area.x << ',' << area.y << ' ' << area.width << 'x' << area.height;
}

namespace {

constexpr int width = 300;
constexpr int height = 400;

TEST(PopoverPlace, IsBesideTheItemAndInsideTheScreen) {
    // What a bar at the screen's edge leaves free.
    constexpr Area belowBar{0, 24, 1400, 976};
    constexpr Area aboveBar{0, 0, 1400, 976};
    constexpr Area secondScreen{1400, 0, 1000, 800};
    const struct {
        const char* item;
        Area place;
        Area screen;
        Area wanted;
    } rows[] = {
        {"in a bar at the top", {700, 0, 20, 24}, belowBar, {560, 30, width, height}},
        {"in a bar at the bottom", {700, 976, 20, 24}, aboveBar, {560, 570, width, height}},
        {"at the right end", {1380, 0, 20, 24}, belowBar, {1094, 30, width, height}},
        {"at the left end", {0, 976, 20, 24}, aboveBar, {6, 570, width, height}},
        {"in a bar at the side", {0, 500, 24, 20}, {24, 0, 976, 1000}, {30, 94, width, height}},
        {"on another screen", {2380, 0, 20, 24}, secondScreen, {2094, 30, width, height}},
        {"under the pointer alone", {700, 990, 1, 1}, aboveBar, {551, 570, width, height}},
        {"on too small a screen", {100, 0, 20, 24}, {0, 0, 200, 200}, {6, 6, width, height}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(popoverPlace(row.place, width, height, row.screen), row.wanted) << row.item;
}

}  // namespace
}  // namespace tidewell
