#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/desktop_entry.h"

namespace tidewell {

/// A desktop entry with what it starts.
struct AppEntry {
    EntryFile file;
    std::string word;                    ///< the program as the entry names it; empty for none
    std::optional<std::string> program;  ///< where that really lies; absent if it is not there
};

AppEntry appEntryOf(const Host& host, EntryFile file);

/// Whether menus show it: an application that is neither hidden nor for others to start, and whose
/// program is not missing by its own word.
bool isShown(const Host& host, const AppEntry& entry);

/// The names under which such a program keeps things: the entry's id, the program's file and the
/// class of its windows. Never one that means other than an entry of a folder, that is too short to
/// mean something, that desktops themselves use, or that belongs to whatever a launcher starts.
std::vector<std::string> namesKeptUnder(const AppEntry& entry);

/// Whether a name may be one under which an application keeps things, as above.
bool canBeKeptUnder(std::string_view name);

}  // namespace tidewell
