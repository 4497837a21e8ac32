#pragma once

namespace tidewell {

/// A place on the desktop, in points, y downwards.
struct Area {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Area&) const = default;
};

/// Where a popover of the given size opens for an item: beside the item's edge that looks into the
/// screen, in the middle of it, and wholly inside `screen`, which is what the desktop leaves free.
/// An item in the screen's upper half has the popover below itself, else above.
Area popoverPlace(const Area& item, int width, int height, const Area& screen);

}  // namespace tidewell
