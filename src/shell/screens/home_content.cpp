#include "shell/screens/home_content.h"

#include <algorithm>
#include <chrono>
#include <cstdint>

#include "kit/byte_text.h"
#include "kit/count_text.h"
#include "kit/percent_text.h"
#include "kit/words.h"
#include "platform/dates.h"

namespace tidewell {

namespace {

constexpr std::int64_t secondsInDay = 86'400;
constexpr std::int64_t scheduleDays = 3;
/// What a date can hold, in seconds since 1970; the stored value may be anything.
constexpr double latestSecond = 9.2e9;

double usedFraction(const HomeReadings& readings) {
    if (readings.volumeBytes < 1) return 1;
    return 1 - static_cast<double>(readings.freeBytes) / static_cast<double>(readings.volumeBytes);
}

std::vector<StatCellContent> stats(const CleanupViewModel& cleanup, const HomeReadings& readings) {
    std::vector<StatCellContent> cells = {
        {"Used", byteText(readings.volumeBytes - readings.freeBytes)},
        {"Total", byteText(readings.volumeBytes)},
    };
    const auto junk = cleanup.totalBytes();
    if (cleanup.phase() == CleanupViewModel::Phase::review && junk >= 1)
        cells.push_back({"Ready to review", byteText(junk)});
    return cells;
}

std::string winnings(ByteCount totalFreedBytes) {
    if (totalFreedBytes < 1) return "First scan = first win. Try it.";
    return byteText(totalFreedBytes) + " won back with Tidewell";
}

std::string cleanValue(const CleanupViewModel& cleanup) {
    switch (cleanup.phase()) {
        case CleanupViewModel::Phase::done:
            return byteText(cleanup.freedBytes()) + " freed";
        case CleanupViewModel::Phase::review:
            return byteText(cleanup.totalBytes()) + " found";
        case CleanupViewModel::Phase::idle:
        case CleanupViewModel::Phase::scanning:
        case CleanupViewModel::Phase::cleaning:
            break;
    }
    return "Scan Now";
}

std::string appsValue(const AppsViewModel& apps) {
    if (apps.apps().empty()) return "See Your Apps";
    return std::to_string(apps.apps().size()) + " apps · " + byteText(apps.totalAppBytes());
}

std::string deepScanValue(const DeepScanViewModel& deepScan) {
    if (deepScan.items().empty()) return "Find the Big Stuff";
    return byteText(deepScan.totalBytes()) + " in big items";
}

std::string advisorValue(const AdvisorViewModel& advisor) {
    if (advisor.phase() != AdvisorViewModel::Phase::list) return "Free Wins";
    return advisor.hasFindings() ? "Wins available" : "All clear";
}

HomeToolContent tool(Mode section, std::string_view description, std::string value) {
    return {
        .section = section,
        .symbol = symbol(section),
        .title = title(section),
        .description = description,
        .value = std::move(value),
    };
}

std::string lastCleanup(double lastCleanupAt, Date now) {
    const auto date = lastCleanupDate(lastCleanupAt);
    return date ? "Last cleanup: " + relativeDateAndTime(*date, now) : "No cleanups yet";
}

/// A suggestion: nothing is scheduled. With the clock set back, the days can be more than three.
std::string nextScan(double lastCleanupAt, Date now) {
    if (!(lastCleanupAt > 0)) return "Run your first scan today";
    const std::chrono::duration<double> sinceEpoch = now.time_since_epoch();
    const auto elapsed =
        static_cast<std::int64_t>(sinceEpoch.count() - std::min(lastCleanupAt, latestSecond));
    if (elapsed >= scheduleDays * secondsInDay) return "A fresh scan is due";
    return "Next scan in about " + countText(scheduleDays - elapsed / secondsInDay, "day");
}

}  // namespace

std::optional<Date> lastCleanupDate(double lastCleanupAt) {
    if (!(lastCleanupAt > 0)) return std::nullopt;
    const std::chrono::duration<double> sinceEpoch(std::min(lastCleanupAt, latestSecond));
    return Date(std::chrono::duration_cast<Date::duration>(sinceEpoch));
}

HomeContent homeContent(const SmartScanController& smartScan, const HomeReadings& readings,
                        Date now) {
    const auto used = usedFraction(readings);
    return {
        .showsSmartScan = smartScan.phase() != SmartScanController::Phase::idle,
        .showsAccessBanner = readings.asksForAccess,
        .freeBytes = readings.freeBytes,
        .usedFraction = used,
        .usedPercent = percentText(used),
        .stats = stats(*smartScan.cleanup, readings),
        .winnings = winnings(readings.totalFreedBytes),
        .tools =
            {
                tool(Mode::clean, wordsOf(readings.system).junkInTwoLines,
                     cleanValue(*smartScan.cleanup)),
                tool(Mode::apps, "Delete apps\n+ their leftovers", appsValue(*smartScan.apps)),
                tool(Mode::deepScan, "Find what's\nactually big",
                     deepScanValue(*smartScan.deepScan)),
                tool(Mode::advisor, "Pro cleanups,\ndone for you",
                     advisorValue(*smartScan.advisor)),
            },
        .lastCleanup = lastCleanup(readings.lastCleanupAt, now),
        .nextScan = nextScan(readings.lastCleanupAt, now),
    };
}

}  // namespace tidewell
