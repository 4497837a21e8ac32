#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tidewell {

enum class ToolOutput { keep, discard };

/// How a tool ended.
struct ToolRun {
    std::optional<int> exitStatus;  ///< absent if a signal ended it
    std::string output;             ///< what it wrote to standard output, if that was kept
};

/// Runs a tool by its path, without a shell, with no standard input and its standard error thrown
/// away, and waits for its end however long that takes; its output is read to the end first, so
/// that a tool that fills the pipe never waits for its reader. Absent if it could not be started:
/// missing, not executable, no program. Blocks; any thread but the main one.
std::optional<ToolRun> runTool(const std::string& path, const std::vector<std::string>& arguments,
                               ToolOutput output);

}  // namespace tidewell
