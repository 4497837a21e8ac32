#pragma once

#include "shell/content_view.h"

namespace tidewell::gallery {

// What scans could have found, put into the view models as if they had just ended.

/// Titles of the Clean tool's catalogue.
std::vector<std::string> someTitles(System system);
/// Half of the Clean tool's catalogue and some project folders, one with a very long name.
void findJunk(const ContentView& view);
/// What Dev Mode would find on a busy developer's machine.
void findDevItems(const ContentView& view);
void findApps(const ContentView& view);
void findBigItems(const ContentView& view);
/// What people moved to the Trash before.
std::vector<TrashedThing> someTrash();
/// What a scan could have had to pass over.
LeftOut someLeftOut();
void findAdvisorWins(const ContentView& view);

}  // namespace tidewell::gallery
