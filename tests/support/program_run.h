#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tidewell::test {

/// How a program ended, seen from outside.
struct ProgramRun {
    std::optional<int> status;  ///< absent if a signal ended it
    std::string output;
    std::string errors;
};

/// Runs a program with its standard output and its standard error caught.
ProgramRun runProgram(const std::string& path, const std::vector<std::string>& arguments);

}  // namespace tidewell::test
