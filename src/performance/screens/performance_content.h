#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "performance/performance_view_model.h"

namespace tidewell {

// Every word, figure, order and condition of the Performance screen. Pure; any thread.

inline constexpr std::string_view mostMemoryHeading = "Using the most memory";

inline constexpr std::string_view startupHeading = "Starts automatically";

/// What the list shows, in the order of the picker.
enum class PerformancePanel { memory, login };

struct PanelChoice {
    PerformancePanel panel;
    std::string_view label;
    bool isChosen;

    bool operator==(const PanelChoice&) const = default;
};

struct AppMemoryRowContent {
    RunningApp app;
    double fraction;   ///< of the largest of the list, from 0 to 1
    std::string size;  ///< "—" if it is not known
    bool isBusy;       ///< was asked to quit, and the answer is awaited

    bool operator==(const AppMemoryRowContent&) const = default;
};

/// `maxBytes` is the largest of the list, `busyPID` as in the view model.
AppMemoryRowContent appMemoryRow(const RunningApp& app, ByteCount maxBytes,
                                 std::optional<std::int32_t> busyPID);

struct LoginItemRowContent {
    std::string id;
    std::string_view symbol;
    std::string label;
    std::string program;
    std::string scope;
    std::string plistURL;

    bool operator==(const LoginItemRowContent&) const = default;
};

LoginItemRowContent loginItemRow(const LoginItem& item);

struct PerformanceContent {
    PerformanceViewModel::Phase phase;
    std::string subtitle;  ///< under the title; empty at the start, which has no header

    // Of the list alone.
    std::vector<PanelChoice> panels;
    std::string memoryPercent;  ///< "63", before its unit
    double memoryFraction;
    std::string memoryLine;  ///< "12 GB of 17 GB"
    std::optional<std::string> message;
    std::vector<AppMemoryRowContent> apps;
    std::vector<LoginItemRowContent> loginItems;
};

/// `panel` is what the user has chosen to see.
PerformanceContent performanceContent(const PerformanceViewModel& model, PerformancePanel panel);

}  // namespace tidewell
