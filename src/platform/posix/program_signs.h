#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/running_programs.h"

namespace tidewell::posix {

// What tells that a program runs, decided from texts alone.

/// The process that a lock's link names: "host-1234" as browsers write it, "127.0.1.1:+1234" as
/// Firefox does. Absent for every other text, and for what another host wrote.
std::optional<std::int32_t> lockHolder(std::string_view link, std::string_view hostName);

/// Whether a process is one of a program's by its executable, or, where that runs other programs,
/// by the words behind it.
bool isExecutableOf(const ProgramSigns& program, std::string_view executable,
                    const std::vector<std::string>& arguments);

}  // namespace tidewell::posix
