#include "cli/cleaning_tool.h"

#include <iostream>
#include <utility>

#include "cleanup/screens/scan_content.h"
#include "cli/progress_line.h"
#include "cli/report.h"
#include "platform/interruption.h"
#include "platform/text.h"

namespace tidewell::cli {

std::optional<WrongCall> tickAsWished(CleaningSession& session, const SelectionWish& wish) {
    const auto wanted = selectedIds(session.items(), wish);
    if (const auto* wrong = std::get_if<WrongCall>(&wanted)) return *wrong;
    const auto& ids = std::get<std::set<std::string>>(wanted);
    session.selectAll(Tick::off);
    setTicks(session.items.mutate(), Tick::on,
             [&ids](const auto& item) { return ids.contains(item.target.id); });
    return std::nullopt;
}

ExitStatus cleanToEnd(const Context& context, CleaningSession& session, Task<> cleaning) {
    const InterruptionWatch watch;
    ProgressLine progress;
    const auto watching = session.willChange.subscribe([&watch, &session] {
        if (watch.wasInterrupted()) session.stopAfterItemInHand();
    });
    const auto showing = onChanged(session.willChange, [&progress, &session] {
        progress.show(session.cleanProgress(), cleaningTitle);
    });
    runToEnd(context.loop, std::move(cleaning));
    if (!session.isSumStored())
        std::cerr << "tidewell-cli: what was freed could not be added to the sum of all cleans: "
                     "another program holds its file, or it cannot be written\n";
    const bool leftSomething = !session.failedTitles().empty() || watch.wasInterrupted();
    return leftSomething ? ExitStatus::leftBehind : ExitStatus::done;
}

void printFailures(const std::vector<std::string>& failedTitles, System system) {
    const auto note = failureNote(failedTitles, system);
    if (!note) return;
    printLine(inked(notCleanedTitle, Ink::careful));
    printLine("  " + terminalText(*note));
}

}  // namespace tidewell::cli
