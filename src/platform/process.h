#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tidewell {

enum class ToolOutput { keep, discard };

/// How a tool ended.
struct ToolRun {
    std::optional<int> exitStatus;  ///< absent if a signal ended it, or somebody else reaped it
    std::string output;             ///< what it wrote to standard output, if that was kept
};

/// What is kept of a tool's output; a tool that writes more finds its pipe closed.
inline constexpr std::size_t longestToolOutput = 16 * 1024 * 1024;

/// Runs a tool by its path, without a shell, with no standard input and its standard error thrown
/// away, and waits for its end however long that takes, or kills it and what it has started once
/// the limit is over. What it started and left running is not waited for, not even if that holds
/// its output. Absent if it could not be started: missing, not executable, no program. Blocks; any
/// thread but the main one.
std::optional<ToolRun> runTool(const std::string& path, const std::vector<std::string>& arguments,
                               ToolOutput output,
                               std::optional<std::chrono::milliseconds> limit = std::nullopt);

}  // namespace tidewell
