#pragma once

#include <string>
#include <vector>

#include "platform/host.h"

namespace tidewell {

/// Something that the system starts by itself when the user logs in or before.
struct LoginItem {
    std::string id;  ///< made anew at each reading
    std::string label;
    std::string program;   ///< what it runs, "—" if that is not told
    std::string plistURL;  ///< the path of the file that defines it
    std::string scope;     ///< "You" or "System"
};

/// What starts by itself on a machine, by label as people read it. What cannot be read, and what is
/// damaged, is left out. Blocks; any thread.
std::vector<LoginItem> loginItems(const Host& host);

/// What the user's and the system's launch folders define, disabled items too.
std::vector<LoginItem> macOSLoginItems(const Host& host);

/// What the desktop starts by its autostart entries, as far as it does on this one, and which of
/// the user's units are enabled.
std::vector<LoginItem> linuxLoginItems(const Host& host);

/// What is shown for an item that does not tell what it runs.
inline constexpr auto unknownProgram = "—";

}  // namespace tidewell
