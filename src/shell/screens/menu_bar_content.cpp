#include "shell/screens/menu_bar_content.h"

#include "kit/byte_text.h"
#include "kit/percent_text.h"

namespace tidewell {

namespace {

/// What a volume without a size is taken for.
constexpr double unknownFreeFraction = 0.5;

double share(ByteCount part, ByteCount total) {
    return static_cast<double>(part) / static_cast<double>(total);
}

double usedFraction(const MenuBarReadings& readings) {
    if (readings.total < 1) return 0.0;
    return share(readings.total - readings.free, readings.total);
}

double freeFraction(const MenuBarReadings& readings) {
    if (readings.total < 1) return unknownFreeFraction;
    return share(readings.free, readings.total);
}

}  // namespace

MenuBarContent menuBarContent(const MenuBarReadings& readings) {
    MenuBarContent content{
        .health = themePalette(freeFraction(readings), readings.system),
        .usedFraction = usedFraction(readings),
        .usedPercent = percentText(usedFraction(readings)),
        .freeBytes = readings.free,
        .freeOf = "free of " + byteText(readings.total),
        .reclaimed = {},
    };
    if (readings.totalFreed >= 1) content.reclaimed = byteText(readings.totalFreed) + " reclaimed";
    return content;
}

}  // namespace tidewell
