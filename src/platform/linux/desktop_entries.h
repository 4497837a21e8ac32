#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"

namespace tidewell::linux_system {

/// An installed application that the user's menus show.
struct DesktopEntry {
    std::string id;  ///< "org.example.Paint", without the file's extension
    std::optional<std::string> name;
    std::string executable;  ///< the real location of what it starts
};

/// The entries of the user and of the system, the user's first, in ascending order of their files.
/// One that starts a program for running other programs (a shell, an interpreter) is left out: it
/// says nothing about what such a process is.
std::vector<DesktopEntry> visibleDesktopEntries(const Host& host);

/// What the text of an entry's file says.
struct DesktopEntryText {
    std::optional<std::string> name;
    std::string program;  ///< the first word of its command, empty if there is none
    bool isVisible = false;
};

DesktopEntryText parseDesktopEntry(std::string_view text);

}  // namespace tidewell::linux_system
