#pragma once

#include <functional>
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

/// What is asked and told while it tries, both between two checks.
struct Watching {
    std::function<bool()> isToEnd = [] { return false; };
    std::function<void(const CheckResult&)> tell = [](const CheckResult&) {};
};

/// Lays out a small machine in a fresh folder below `place`, a real location, tries there what
/// could lose something, and removes the folder by the same doors as everything. What an
/// earlier run that was killed has left there goes first. Blocks, for a few seconds on a disk of
/// this machine and for minutes on one that answers slowly; any thread.
Report checkIn(const std::string& place, const Watching& watching = {});

}  // namespace tidewell::selfcheck
