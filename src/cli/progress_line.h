#pragma once

#include <string_view>

namespace tidewell::cli {

/// One line on standard error that is written over and over while something runs, and wiped at the
/// end. Nothing at all unless that is a terminal.
class ProgressLine {
 public:
    ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine();

    /// Shows how much is done, from 0 to 1, and what is being worked on.
    void show(double fraction, std::string_view what);
    /// The same where nobody knows how much there is to do.
    void show(std::string_view what);

 private:
    bool isShown_ = false;
    const bool isTerminal_;
};

}  // namespace tidewell::cli
