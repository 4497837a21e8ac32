#include "selfcheck/selfcheck.h"

#include <algorithm>

#include "cli/commands/commands.h"
#include "cli/report.h"
#include "platform/files.h"
#include "platform/interruption.h"
#include "platform/removal_lock.h"
#include "platform/text.h"
#include "selfcheck/child.h"

namespace tidewell::cli {

namespace {

using selfcheck::CheckResult;
using selfcheck::Report;
using selfcheck::Verdict;

struct VerdictWords {
    std::string_view shown;
    std::string_view name;
    Ink ink;
};

VerdictWords wordsOf(Verdict verdict) {
    switch (verdict) {
        case Verdict::passed:
            return {"passed", "passed", Ink::good};
        case Verdict::failed:
            return {"failed", "failed", Ink::bad};
        case Verdict::notTried:
            return {"not tried", "notTried", Ink::careful};
    }
    return {};
}

void print(const CheckResult& result) {
    constexpr int nameColumns = 13;
    constexpr int triedColumns = 54;
    constexpr int countColumns = 7;
    const auto verdict = wordsOf(result.verdict);
    auto outcome = inked(verdict.shown, verdict.ink);
    if (!result.why.empty()) outcome += ": " + terminalText(result.why);
    printLine(leftAligned(result.name, nameColumns) + leftAligned(result.tried, triedColumns) +
              rightAligned(std::to_string(result.times), countColumns) +
              rightAligned(std::to_string(result.stoodBy), countColumns) + "  " + outcome);
}

void printHeading(std::string_view place) {
    printLine("Tried in a folder of its own in " + terminalText(place));
    printLine();
    printLine(
        inked("Check        Tried                                                   Times"
              "  Stood  Outcome",
              Ink::faint));
}

void printEnd(const Report& report) {
    printLine();
    if (!report.problem.empty()) printLine(inked(terminalText(report.problem) + ".", Ink::bad));
    printLine(report.hasPassed() ? inked("Passed:", Ink::good) + " nothing was lost."
                                 : inked("Not passed.", Ink::bad));
}

Value shapeOf(const CheckResult& result) {
    Value::Object shape = {
        {"name", result.name},
        {"tried", result.tried},
        {"outcome", wordsOf(result.verdict).name},
        {"times", static_cast<std::int64_t>(result.times)},
        {"stoodBy", static_cast<std::int64_t>(result.stoodBy)},
    };
    if (!result.why.empty()) shape.emplace_back("why", result.why);
    return shape;
}

Value document(const Report& report) {
    Value::List checks;
    for (const auto& result : report.results) checks.push_back(shapeOf(result));
    Value::Object shape = {
        {"folder", report.folder}, {"passed", report.hasPassed()}, {"checks", std::move(checks)}};
    if (!report.problem.empty()) shape.emplace_back("problem", report.problem);
    return shape;
}

/// The reason is for the parent, which reads standard output alone.
Outcome play(const SelfcheckCall& call) {
    const auto obstacle = selfcheck::play(call.on.value_or(std::string()), *call.part);
    if (obstacle.empty()) return ExitStatus::done;
    printLine(obstacle);
    return ExitStatus::leftBehind;
}

}  // namespace

Outcome runSelfcheck(const Context& context, const SelfcheckCall& call) {
    if (call.part) return play(call);
    const auto place =
        call.on ? resolvedPath(absolutePath(*call.on)) : selfcheck::usualPlace(context.host);
    if (!place || fileKind(*place) != FileKind::folder)
        return WrongCall{call.on ? "There is no folder " + terminalText(*call.on)
                                 : "There is no folder for caches or scratch files: name one with "
                                   "--on"};
    const bool isDocument = context.form == OutputForm::json;
    const InterruptionWatch watch;
    selfcheck::Watching watching;
    watching.isToEnd = [&watch] { return watch.wasInterrupted(); };
    if (!isDocument) {
        printHeading(*place);
        watching.tell = [](const CheckResult& result) { print(result); };
    }
    auto report = selfcheck::checkIn(*place, watching);
    // What passes on another disk says nothing of the one that the home folder lies on.
    if (!call.on && report.hasPassed() && makersTrial() == MakersTrial::outstanding &&
        unlockRemovals(context.host) == UserDefaults::Written::no)
        report.problem = "It passed, but that could not be written down, so removal stays locked";
    if (isDocument) {
        printDocument(document(report));
    } else {
        printEnd(report);
    }
    return report.hasPassed() ? ExitStatus::done : ExitStatus::leftBehind;
}

}  // namespace tidewell::cli
