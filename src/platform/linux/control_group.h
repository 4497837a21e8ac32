#pragma once

#include <optional>
#include <string_view>

#include "platform/posix/application_group.h"

namespace tidewell::linux_system {

using posix::GroupedApplication;
using posix::Packaging;

/// What a unit's name says: "app-gnome-org.example.Paint-1234.scope" (the launcher and the number
/// may be missing), "app-org.example.Paint@1.service", "snap.paint.paint-1f2e.scope". Absent for
/// every other name.
std::optional<GroupedApplication> applicationOfUnit(std::string_view unit);

/// What the text of a process's "cgroup" says: the innermost unit that stands for an application.
std::optional<GroupedApplication> applicationOfGroups(std::string_view text);

}  // namespace tidewell::linux_system
