#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "shell/section_palette.h"

namespace tidewell {

/// The sections of the program, in the order of the sidebar.
enum class Mode { home, clean, devMode, apps, performance, deepScan, advisor };

/// All that is fixed about a section.
struct Section {
    Mode mode;
    std::string_view title;  ///< in the sidebar; also the section's name outside the program
    std::string_view symbol;
    SectionAccent accent;
    std::string_view view;      ///< in the window; empty for one whose step decides
    std::string_view jsonName;  ///< in what the command line writes for programs
    std::string_view command;   ///< of the command line, that goes on where the section would
};

inline constexpr std::array sections{
    Section{.mode = Mode::home,
            .title = "Home",
            .symbol = "house.fill",
            .accent = SectionAccent::green,
            .view = "HomeView",
            .jsonName = "home",
            .command = "status"},
    Section{.mode = Mode::clean,
            .title = "Clean",
            .symbol = "sparkles",
            .accent = SectionAccent::green,
            .view = "",
            .jsonName = "clean",
            .command = "clean"},
    Section{.mode = Mode::devMode,
            .title = "Dev Mode",
            .symbol = "chevron.left.forwardslash.chevron.right",
            .accent = SectionAccent::cyan,
            .view = "DevModeView",
            .jsonName = "devMode",
            .command = "dev"},
    Section{.mode = Mode::apps,
            .title = "Apps",
            .symbol = "square.grid.2x2.fill",
            .accent = SectionAccent::violet,
            .view = "AppsView",
            .jsonName = "apps",
            .command = "apps"},
    Section{.mode = Mode::performance,
            .title = "Performance",
            .symbol = "speedometer",
            .accent = SectionAccent::teal,
            .view = "PerformanceView",
            .jsonName = "performance",
            .command = "performance"},
    Section{.mode = Mode::deepScan,
            .title = "Deep Scan",
            .symbol = "scope",
            .accent = SectionAccent::blue,
            .view = "DeepScanView",
            .jsonName = "deepScan",
            .command = "deep-scan"},
    Section{.mode = Mode::advisor,
            .title = "Advisor",
            .symbol = "wand.and.stars",
            .accent = SectionAccent::amber,
            .view = "AdvisorView",
            .jsonName = "advisor",
            .command = "advisor"},
};

constexpr const Section& section(Mode mode) {
    return sections[static_cast<std::size_t>(mode)];
}

inline constexpr auto allModes = [] {
    std::array<Mode, sections.size()> modes{};
    for (std::size_t index = 0; index < modes.size(); ++index) modes[index] = sections[index].mode;
    return modes;
}();
static_assert([] {
    for (const auto mode : allModes)
        if (section(mode).mode != mode) return false;
    return true;
}());

constexpr std::string_view title(Mode mode) {
    return section(mode).title;
}
constexpr std::string_view symbol(Mode mode) {
    return section(mode).symbol;
}
constexpr SectionAccent accent(Mode mode) {
    return section(mode).accent;
}

/// The section of exactly that name, if there is one.
constexpr std::optional<Mode> modeNamed(std::string_view name) {
    for (const auto& each : sections)
        if (each.title == name) return each.mode;
    return std::nullopt;
}

}  // namespace tidewell
