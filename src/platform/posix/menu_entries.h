#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/host.h"

namespace tidewell::posix {

/// An installed application that the user's menus show.
struct MenuEntry {
    std::string id;  ///< "org.example.Paint", without the file's extension
    std::optional<std::string> name;
    std::string executable;  ///< the real location of what it starts
};

/// The entries of the user and of the system, the user's first. One that starts a program for
/// running other programs (a shell, an interpreter) is left out: it says nothing about what such a
/// process is.
std::vector<MenuEntry> menuEntries(const Host& host);

}  // namespace tidewell::posix
