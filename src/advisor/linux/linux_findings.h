#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "advisor/finding.h"
#include "platform/host.h"

namespace tidewell {

/// What a Linux machine has that only its own tools may clean, in the order of what they gain for
/// the user himself first. What is not there is not listed, and neither is what a tool does not
/// tell within ten seconds. Nothing here needs rights or changes anything. Blocks; any thread but
/// the main one.
std::vector<Finding> linuxFindings(const Host& host);

/// Where a tool lies by its name, in the folders in which the system and its user keep programs;
/// absent if there is none on that machine.
std::optional<std::string> toolNamed(const Host& host, std::string_view name);

/// Runs a finding's commands one after the other, as the user, and stops at the first that fails.
/// Waits for as long as they take; any thread but the main one.
bool carryOut(const Host& host, const Finding& finding);

// The probes that read other programs' own words and files. As above.

/// Runtimes of the user's own flatpaks that none of them uses. A runtime that is pinned, or of
/// which it cannot be told what it belongs to, counts as used.
std::optional<Finding> unusedFlatpakRuntimes(const Host& host);
std::optional<Finding> danglingPodmanImages(const Host& host);
std::optional<Finding> dockerLeftovers(const Host& host);
std::optional<Finding> unneededPackages(const Host& host);

/// "1.2GB (40%)" in bytes, as docker counts them; 0 for anything else.
ByteCount dockerSize(std::string_view text);

}  // namespace tidewell
