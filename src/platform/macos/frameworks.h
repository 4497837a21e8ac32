#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/byte_count.h"

namespace tidewell::macos_system {

// What the system's frameworks alone can answer. They are loaded when they are first asked, and by
// the names that they make public: where one is missing or knows a name no longer, there is no
// answer. Any thread.

/// Asks an application to quit as its own menu would. False for a process that is none.
bool askApplicationToQuit(std::int32_t process);

/// The room on a volume for what matters to the user: what the system would clear for it counts.
std::optional<ByteCount> roomForImportantUsage(const std::string& path);

}  // namespace tidewell::macos_system
