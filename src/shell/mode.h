#pragma once

#include <array>
#include <string_view>

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

}  // namespace tidewell
