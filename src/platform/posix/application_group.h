#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tidewell::posix {

/// How an application came onto the machine, as far as its processes' group tells.
enum class Packaging { desktopEntry, flatpak, snap };

/// The application that a desktop started a group of processes for.
struct GroupedApplication {
    Packaging packaging = Packaging::desktopEntry;
    std::string id;  ///< a desktop entry's, a flatpak's or a snap's name

    bool operator==(const GroupedApplication&) const = default;
};

/// Of a process; absent too if it has ended, and where the system has no such groups.
std::optional<GroupedApplication> groupedApplication(std::int32_t process);

}  // namespace tidewell::posix
