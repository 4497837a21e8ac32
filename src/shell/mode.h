#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "shell/section_palette.h"

namespace tidewell {

/// The sections of the program, in the order of the sidebar.
enum class Mode { home, clean, devMode, apps, performance, deepScan, advisor };

inline constexpr std::array allModes = {
    Mode::home,        Mode::clean,    Mode::devMode, Mode::apps,
    Mode::performance, Mode::deepScan, Mode::advisor,
};

/// The label in the sidebar, which is also the section's name outside the program.
std::string_view title(Mode mode);

std::string_view symbol(Mode mode);

SectionAccent accent(Mode mode);

/// The section of exactly that name, if there is one.
std::optional<Mode> modeNamed(std::string_view name);

}  // namespace tidewell
