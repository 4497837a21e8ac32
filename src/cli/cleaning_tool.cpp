#include "cli/cleaning_tool.h"

#include "cli/report.h"
#include "platform/text.h"

namespace tidewell::cli {

void printFailures(const std::vector<std::string>& failedTitles) {
    const auto note = failureNote(failedTitles);
    if (!note) return;
    printLine(inked(notCleanedTitle, Ink::careful));
    printLine("  " + terminalText(*note));
}

}  // namespace tidewell::cli
