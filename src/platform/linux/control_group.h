#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tidewell::linux_system {

/// How an application came onto the machine, as far as its processes' group tells.
enum class Packaging { desktopEntry, flatpak, snap };

/// The application that a desktop started a group of processes for.
struct GroupedApplication {
    Packaging packaging = Packaging::desktopEntry;
    std::string id;  ///< a desktop entry's, a flatpak's or a snap's name

    bool operator==(const GroupedApplication&) const = default;
};

/// What a unit's name says: "app-gnome-org.example.Paint-1234.scope" (the launcher and the number
/// may be missing), "app-org.example.Paint@1.service", "snap.paint.paint-1f2e.scope". Absent for
/// every other name.
std::optional<GroupedApplication> applicationOfUnit(std::string_view unit);

/// What the text of a process's "cgroup" says: the innermost unit that stands for an application.
std::optional<GroupedApplication> applicationOfGroups(std::string_view text);

/// Of a process; absent too if it has ended.
std::optional<GroupedApplication> groupedApplication(std::int32_t process);

}  // namespace tidewell::linux_system
