#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/byte_count.h"
#include "shell/mode.h"
#include "shell/theme_engine.h"

namespace tidewell {

// Every word, figure and condition of the status item and its popover. Pure; any thread.

inline constexpr std::string_view statusItemTitle = "Tidewell";
/// The status item's image where the logo is missing.
inline constexpr std::string_view statusItemSymbol = "sparkles";
inline constexpr std::string_view openFullAppLabel = "Open full app";
inline constexpr std::string_view quitProgramLabel = "Quit Tidewell";

/// The sections that the popover leads to. A card shows its section's title, which is also the name
/// that the section is opened by, its symbol and its accent.
inline constexpr std::array quickCards = {Mode::clean, Mode::apps, Mode::deepScan, Mode::advisor};

struct MenuBarReadings {
    System system = System::macOS;  ///< of the machine
    ByteCount free = 0;             ///< of the home folder's volume; 0 of 1 if that cannot be read
    ByteCount total = 1;            ///< likewise
    ByteCount totalFreed = 0;       ///< the sum kept over all cleans
};

struct MenuBarContent {
    ThemePalette health;
    double usedFraction;
    std::string usedPercent;
    ByteCount freeBytes;
    std::string freeOf;                    ///< "free of 494.38 GB"
    std::optional<std::string> reclaimed;  ///< absent before the first clean
};

MenuBarContent menuBarContent(const MenuBarReadings& readings);

}  // namespace tidewell
