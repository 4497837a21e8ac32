#include "apps/installed_app.h"

#include <algorithm>
#include <limits>

#include "platform/dates.h"

namespace tidewell {

std::string lastUsedLabel(const InstalledApp& app, Date now) {
    if (!app.lastUsed) return "No recent use on record";
    return "Used " + relativeDate(*app.lastUsed, now);
}

std::int64_t monthsIdle(const InstalledApp& app, Date now) {
    constexpr std::int64_t daysInMonth = 30;
    if (!app.lastUsed) return std::numeric_limits<std::int64_t>::max();
    return std::max<std::int64_t>(wholeDaysBetween(*app.lastUsed, now) / daysInMonth, 0);
}

}  // namespace tidewell
