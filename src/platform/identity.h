#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>

namespace tidewell {

/// Which entry of which disk it is, whatever path leads to it.
struct Identity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;

    auto operator<=>(const Identity&) const = default;
};

/// Of the entry itself, which may be a link; absent if it cannot be looked at. Any thread.
std::optional<Identity> identityOf(const std::string& path);

/// Whether the system says that no entry stands there. What cannot be looked at is not missing.
bool isSurelyMissing(const std::string& path);

/// Whether what a path leads to in the end cannot be told: not since nothing stands there, the way
/// goes in circles or is closed to this user, but since a disk would not say, or it is too far. Of
/// a disk that is silent nothing is asked, and nothing is found untold.
bool isEndUntold(const std::string& path);

}  // namespace tidewell
