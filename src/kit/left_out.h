#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/system.h"

namespace tidewell {

/// What a scan had to pass over, so that its figures are without it.
struct LeftOut {
    std::vector<std::string> silentMounts;  ///< where mounts lie that do not answer
    std::size_t unreadFolders = 0;

    bool operator==(const LeftOut&) const = default;
};

/// "/home/ada/Server does not answer and was left out."; absent if there is none.
std::optional<std::string> silentMountsNote(const std::vector<std::string>& places);

/// "3 folders could not be read."; absent if there is none, and on systems that do not tell.
std::optional<std::string> unreadNote(const LeftOut& leftOut, System system);

/// Both, one behind the other.
std::optional<std::string> leftOutNote(const LeftOut& leftOut, System system);

}  // namespace tidewell
