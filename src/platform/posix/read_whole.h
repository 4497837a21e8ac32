#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/posix/descriptor.h"

namespace tidewell::posix {

/// What is left to read of something open; absent if that fails, or is longer than `limit` bytes.
inline std::optional<std::string> readWhole(const Descriptor& file, std::size_t limit) {
    std::string bytes;
    char buffer[64 * 1024];
    while (bytes.size() <= limit) {
        const auto count = retrying([&] { return ::read(file.get(), buffer, sizeof buffer); });
        if (count < 0) return std::nullopt;
        if (count == 0) return bytes;
        bytes.append(buffer, static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

}  // namespace tidewell::posix
