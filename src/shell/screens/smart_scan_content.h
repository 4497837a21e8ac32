#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/byte_count.h"
#include "platform/files.h"
#include "shell/mode.h"
#include "shell/smart_scan_controller.h"

namespace tidewell {

// Every word, figure and condition of the smart scan's screen, from the controller and the four
// view models behind it. Pure. Where something has a section, it is drawn in that section's accent.

/// A quarter of the ring.
struct RingSegmentContent {
    Mode section = Mode::clean;
    double fill = 0;       ///< 0 to 1
    bool warming = false;  ///< at work without a known progress

    bool operator==(const RingSegmentContent&) const = default;
};

/// What stands inside the ring: while running a symbol and a percentage, afterwards what was found,
/// or a symbol and "all clear".
struct RingCentreContent {
    std::string_view symbol;
    std::string figure;
    std::string_view caption;
};

enum class ToolCardStatus { done, waiting, active, skipped };

struct ToolCardContent {
    Mode section = Mode::clean;  ///< what it opens
    std::string_view symbol;
    std::string_view title;
    ToolCardStatus status = ToolCardStatus::waiting;
    std::string line;            ///< "1.2 GB", "up next"
    std::string_view mark;       ///< beside the finished card's symbol; empty for the others
    std::string_view hoverMark;  ///< the same under the pointer
    double opacity = 1;
    bool opens = false;  ///< whether a tap opens the tool

    bool operator==(const ToolCardContent&) const = default;
};

struct InsightContent {
    std::string_view symbol;
    std::string text;
    Mode section = Mode::clean;

    bool operator==(const InsightContent&) const = default;
};

struct PrimaryActionContent {
    std::string label;
    Mode opens = Mode::clean;
};

struct SmartScanContent {
    bool isRunning = false;  ///< whether there is a stop button instead of a way back
    std::array<RingSegmentContent, SmartScanController::allTools.size()> segments;
    double fraction = 0;  ///< of the whole run, 0 to 1
    RingCentreContent centre;
    std::string_view title;
    std::string line;
    std::array<ToolCardContent, SmartScanController::allTools.size()> cards;
    std::vector<InsightContent> insights;               ///< at most three, once done
    std::optional<PrimaryActionContent> primaryAction;  ///< once done, if there is one
};

SmartScanContent smartScanContent(const SmartScanController& controller, Date now);

/// What Clean, Deep Scan and the Advisor can win back together.
ByteCount foundBytes(const SmartScanController& controller);

}  // namespace tidewell
