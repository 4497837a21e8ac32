#pragma once

#include <string_view>
#include <vector>

#include "shell/content_view.h"

namespace tidewell {

// Every word and condition of the main window around its screens. Pure.

inline constexpr std::string_view accessTitle = "Full Disk Access";
inline constexpr std::string_view accessSymbol = "lock.shield.fill";
inline constexpr std::string_view accessGrantedSymbol = "checkmark.shield.fill";

struct SidebarRowContent {
    Mode mode;
    std::string_view symbol;
    std::string_view label;
    bool isActive;

    bool operator==(const SidebarRowContent&) const = default;
};

struct WindowContent {
    std::vector<SidebarRowContent> rows;
    /// The view in the detail area. The Clean tool has one for each step of its way.
    std::string_view detailView;
    SectionAccent accent;  ///< of the section in the detail area
    bool showsAccess;      ///< there is an access to grant
    bool hasFullDiskAccess;
};

WindowContent windowContent(const ContentView& view);

}  // namespace tidewell
