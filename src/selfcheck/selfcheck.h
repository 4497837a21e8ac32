#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/host.h"
#include "selfcheck/check.h"

namespace tidewell::selfcheck {

/// What all checks found on one disk of this machine.
struct Report {
    std::string folder;  ///< in which it was tried; nothing is left there
    std::vector<CheckResult> results = {};
    std::string problem = {};  ///< why nothing was tried, or what was left behind; empty if neither

    /// Nothing failed, all that is essential was tried, and nothing was left behind.
    bool hasPassed() const;
};

/// Where it is tried if the user names no place: the user's folder of caches, else of scratch
/// files. Absent if there is neither.
std::optional<std::string> usualPlace(const Host& host);

/// Lays out a small machine in a fresh folder below `place`, a real location, tries there what
/// could lose something, and removes the folder by the same doors as everything. What an
/// interrupted run has left there goes first. Blocks for a second or so; any thread.
Report checkIn(const std::string& place);

}  // namespace tidewell::selfcheck
