#include "shell/screens/smart_scan_content.h"

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <utility>

#include "kit/byte_text.h"
#include "kit/count_text.h"
#include "kit/percent_text.h"
#include "platform/dates.h"
#include "platform/sum.h"

namespace tidewell {

namespace {

using Phase = SmartScanController::Phase;
using Tool = SmartScanController::Tool;

constexpr std::int64_t untouchedDays = 90;
constexpr double dimmed = 0.55;

Mode section(Tool tool) {
    switch (tool) {
        case Tool::clean:
            return Mode::clean;
        case Tool::apps:
            return Mode::apps;
        case Tool::deepScan:
            return Mode::deepScan;
        case Tool::advisor:
            return Mode::advisor;
    }
    return {};
}

std::string bytesOr(ByteCount bytes, std::string_view words) {
    return bytes >= 1 ? byteText(bytes) : std::string(words);
}

std::string advisorValue(const AdvisorViewModel& advisor) {
    return bytesOr(advisor.reclaimableBytes(), advisor.hasFindings() ? "Wins found" : "All clear");
}

/// A tool as its own view model has it, whoever started its scan.
struct ToolReading {
    bool isFinished;
    double progress;    ///< of a scan under way; the Advisor tells none
    std::string value;  ///< what a finished tool's card says
};

ToolReading read(const SmartScanController& controller, Tool tool) {
    const auto& [cleanup, apps, deepScan, advisor] =
        std::tie(*controller.cleanup, *controller.apps, *controller.deepScan, *controller.advisor);
    switch (tool) {
        case Tool::clean:
            return {.isFinished = controller.cleanFinished(),
                    .progress = cleanup.scanProgress(),
                    .value = bytesOr(cleanup.totalBytes(), "Spotless")};
        case Tool::apps:
            return {.isFinished = apps.phase() == AppsViewModel::Phase::list,
                    .progress = apps.scanProgress(),
                    .value = std::to_string(apps.apps().size()) + " apps"};
        case Tool::deepScan:
            return {.isFinished = deepScan.phase() == DeepScanViewModel::Phase::list,
                    .progress = deepScan.scanProgress(),
                    .value = bytesOr(deepScan.totalBytes(), "Tidy")};
        case Tool::advisor:
            return {.isFinished = advisor.phase() == AdvisorViewModel::Phase::list,
                    .progress = 0,
                    .value = advisorValue(advisor)};
    }
    return {};
}

RingSegmentContent segment(const SmartScanController& controller, Tool tool,
                           const ToolReading& reading) {
    const bool isCurrent = controller.currentTool() == tool;
    RingSegmentContent content{
        .section = section(tool),
        .fill = isCurrent ? reading.progress : 0,
        .warming = isCurrent && tool == Tool::advisor,
    };
    if (reading.isFinished) content.fill = 1;
    return content;
}

ToolCardStatus cardStatus(const SmartScanController& controller, Tool tool,
                          const ToolReading& reading) {
    if (controller.currentTool() == tool) return ToolCardStatus::active;
    if (reading.isFinished) return ToolCardStatus::done;
    return controller.phase() == Phase::done ? ToolCardStatus::skipped : ToolCardStatus::waiting;
}

std::string cardLine(ToolCardStatus status, const ToolReading& reading) {
    switch (status) {
        case ToolCardStatus::done:
            return reading.value;
        case ToolCardStatus::waiting:
            return "up next";
        case ToolCardStatus::active:
            return "scanning";
        case ToolCardStatus::skipped:
            return "skipped";
    }
    return {};
}

ToolCardContent card(const SmartScanController& controller, Tool tool, const ToolReading& reading) {
    const auto status = cardStatus(controller, tool, reading);
    const bool isDone = status == ToolCardStatus::done;
    const bool isDimmed = status == ToolCardStatus::waiting || status == ToolCardStatus::skipped;
    return {
        .section = section(tool),
        .symbol = symbol(section(tool)),
        .title = title(section(tool)),
        .status = status,
        .line = cardLine(status, reading),
        .mark = isDone ? "done" : "",
        .hoverMark = isDone ? "tap to view" : "",
        .opacity = isDimmed ? dimmed : 1,
        .opens = isDone && controller.phase() == Phase::done,
    };
}

RingCentreContent runningCentre(Tool tool, double fraction) {
    return {.symbol = symbol(section(tool)), .figure = percentText(fraction), .caption = ""};
}

RingCentreContent foundCentre(ByteCount found) {
    if (found < 1) return {.symbol = "checkmark.seal.fill", .figure = "", .caption = "all clear"};
    return {.symbol = "", .figure = byteText(found), .caption = "found"};
}

std::string_view runningTitle(Tool tool) {
    switch (tool) {
        case Tool::clean:
            return "Looking for junk…";
        case Tool::apps:
            return "Reading your apps…";
        case Tool::deepScan:
            return "Sizing up big items…";
        case Tool::advisor:
            return "Checking expert wins…";
    }
    return {};
}

std::int64_t untouchedApps(const AppsViewModel& apps, Date now) {
    return std::ranges::count_if(apps.apps(), [now](const InstalledApp& app) {
        return app.lastUsed && wholeDaysBetween(*app.lastUsed, now) >= untouchedDays;
    });
}

InsightContent insight(Mode about, std::string text) {
    return {.symbol = symbol(about), .text = std::move(text), .section = about};
}

std::vector<InsightContent> insights(const SmartScanController& controller, Date now) {
    std::vector<InsightContent> found;
    if (const auto& items = controller.cleanup->items(); !items.empty())
        found.push_back(insight(Mode::clean, "Biggest win: " + items.front().target.title + ", " +
                                                 byteText(items.front().sizeBytes) +
                                                 ". Ready to clean."));
    if (const auto count = untouchedApps(*controller.apps, now); count > 0)
        found.push_back(insight(
            Mode::apps, countText(count, "app") + " untouched for 3+ months. Worth a look."));
    const auto& bigItems = controller.deepScan->items();
    if (const auto bytes = controller.advisor->reclaimableBytes(); bytes >= 1)
        found.push_back(
            insight(Mode::advisor, "Advisor can free " + byteText(bytes) + " for you."));
    else if (!bigItems.empty())
        found.push_back(insight(Mode::deepScan, "Largest item on disk: " + bigItems.front().name +
                                                    " (" + byteText(bigItems.front().sizeBytes) +
                                                    ")."));
    return found;
}

std::optional<PrimaryActionContent> primaryAction(const SmartScanController& controller) {
    if (const auto junk = controller.cleanup->totalBytes(); junk >= 1)
        return PrimaryActionContent{.label = "Review " + byteText(junk) + " of junk",
                                    .opens = Mode::clean};
    if (controller.deepScan->totalBytes() >= 1)
        return PrimaryActionContent{.label = "See big items", .opens = Mode::deepScan};
    if (controller.advisor->hasFindings())
        return PrimaryActionContent{.label = "See Advisor wins", .opens = Mode::advisor};
    return std::nullopt;
}

}  // namespace

ByteCount foundBytes(const SmartScanController& controller) {
    return sumOf(std::initializer_list<ByteCount>{controller.cleanup->totalBytes(),
                                                  controller.deepScan->totalBytes(),
                                                  controller.advisor->reclaimableBytes()});
}

SmartScanContent smartScanContent(const SmartScanController& controller, Date now) {
    SmartScanContent content;
    for (std::size_t index = 0; index < SmartScanController::allTools.size(); ++index) {
        const auto tool = SmartScanController::allTools.at(index);
        const auto reading = read(controller, tool);
        content.segments.at(index) = segment(controller, tool, reading);
        content.cards.at(index) = card(controller, tool, reading);
        content.fraction += content.segments.at(index).fill * 0.25;
    }
    content.isRunning = controller.isRunning();
    if (const auto tool = controller.currentTool()) {
        content.centre = runningCentre(*tool, content.fraction);
        content.title = runningTitle(*tool);
        content.line = controller.detail();
        return content;
    }
    content.centre = foundCentre(foundBytes(controller));
    content.title = controller.stopped() ? "Scan stopped" : "All scanned.";
    content.line = "Nothing deleted yet. Tap a tool to dig in.";
    content.insights = insights(controller, now);
    content.primaryAction = primaryAction(controller);
    return content;
}

}  // namespace tidewell
