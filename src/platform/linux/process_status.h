#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/byte_count.h"

namespace tidewell::linux_system {

// What the texts of /proc say.

struct ProcessStatus {
    char state = 0;
    std::int32_t parent = 0;
    std::uint64_t startTime = 0;
};

/// Reads one line of "stat". The program's name in it may hold any characters.
std::optional<ProcessStatus> parseProcessStatus(std::string_view line);

/// The count behind `label` at the start of a line such as "MemTotal:   24683620 kB", in bytes.
std::optional<ByteCount> labelledByteCount(std::string_view text, std::string_view label);

}  // namespace tidewell::linux_system
