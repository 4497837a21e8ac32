#include "advisor/screens/advisor_content.h"
#include "cli/commands/commands.h"
#include "cli/report.h"
#include "cli/shapes.h"
#include "kit/words.h"
#include "platform/dates.h"
#include "platform/interruption.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

using Model = std::shared_ptr<AdvisorViewModel>;

/// The one action of a call, ready to be carried out.
struct PlannedAction {
    std::string plan;  ///< what it would do, in words
    std::function<Task<>()> carryOut;
};

std::variant<PlannedAction, WrongCall> deletion(const Model& model, const std::string& word) {
    std::vector<std::string> ids;
    for (const auto& runtime : model->findings().runtimes) ids.push_back(runtime.id);
    const auto place = findById(ids, word, "runtime");
    if (const auto* wrong = std::get_if<WrongCall>(&place)) return *wrong;
    const auto runtime = model->findings().runtimes[std::get<std::size_t>(place)];
    if (!runtime.deletable)
        return WrongCall{terminalText(runtime.name) + " is a runtime that can't be deleted"};
    return PlannedAction{"Would delete " + terminalText(runtime.name) + ".",
                         [model, runtime] { return model->deleteRuntime(runtime); }};
}

std::variant<PlannedAction, WrongCall> running(const Model& model, const std::string& word) {
    const auto found = listed(model->findings());
    std::vector<std::string> ids;
    for (const auto& finding : found) ids.push_back(finding.id);
    const auto place = findById(ids, word, "finding");
    if (const auto* wrong = std::get_if<WrongCall>(&place)) return *wrong;
    const auto& finding = found[std::get<std::size_t>(place)];
    if (finding.action != FindingAction::run)
        return WrongCall{terminalText(finding.title) + " is not for this program to run" +
                         (finding.command.empty() ? "" : ": " + terminalText(finding.command))};
    const auto plan = finding.command.empty() ? std::string(finding.actionLabel) : finding.command;
    return PlannedAction{"Would run: " + terminalText(plan),
                         [model, id = finding.id] { return model->run(id); }};
}

/// Absent if the call wants none.
std::variant<std::optional<PlannedAction>, WrongCall> plannedAction(const Model& model,
                                                                    const AdvisorCall& call) {
    const int wanted = int{call.run.has_value()} + int{call.deleteRuntime.has_value()} +
                       int{call.removeUnavailable} + int{call.thinSnapshots};
    if (wanted > 1) return WrongCall{"One action in a call is enough"};
    if (call.run) {
        auto action = running(model, *call.run);
        if (const auto* wrong = std::get_if<WrongCall>(&action)) return *wrong;
        return std::optional(std::get<PlannedAction>(std::move(action)));
    }
    if (call.deleteRuntime) {
        auto action = deletion(model, *call.deleteRuntime);
        if (const auto* wrong = std::get_if<WrongCall>(&action)) return *wrong;
        return std::optional(std::get<PlannedAction>(std::move(action)));
    }
    if (call.removeUnavailable)
        return std::optional(PlannedAction{"Would remove simulators whose runtime is gone.",
                                           [model] { return model->removeUnavailableSims(); }});
    if (call.thinSnapshots)
        return std::optional(PlannedAction{"Would ask the system to purge local snapshots.",
                                           [model] { return model->thinSnapshots(); }});
    return std::optional<PlannedAction>();
}

void printRuntime(const AdvisorRuntimeRow& row) {
    printLine("    " + inked(terminalText(row.name), Ink::strong) + " " +
              inked(terminalText(row.build), Ink::faint) + "  " + row.size + "  " +
              inked(terminalText(row.id), Ink::faint));
    if (row.lastUsed) printLine("      " + *row.lastUsed);
    printLine("      " + terminalText(row.usedBy));
    if (row.deleteButton == AdvisorControlState::disabled)
        printLine("      " + inked("Can't be deleted", Ink::faint));
}

void printFindings(const AdvisorViewModel& model) {
    const auto content = advisorContent(model, now());
    printLine(inked(content.headline, Ink::strong));
    printLine(wordsOf(model.system).advisorTools);
    if (content.notice) printLine(content.notice->line);
    const bool hasIds = model.system == System::linux;
    for (const auto& card : content.cards) {
        printLine();
        printLine("  " + inked(terminalText(card.title), Ink::strong) + "  " +
                  card.size.value_or("") + (hasIds ? "  " + inked(card.id, Ink::faint) : ""));
        printLine("  " + inked(terminalText(card.body), card.isWarning ? Ink::bad : Ink::plain));
        if (!card.command.empty())
            printLine("    " + inked(terminalText(card.command), Ink::strong));
        for (const auto& runtime : card.runtimes) printRuntime(runtime);
    }
}

ExitStatus carryOut(const Context& context, const AdvisorViewModel& model,
                    const PlannedAction& action) {
    const InterruptionWatch watch;
    runToEnd(context.loop, action.carryOut());
    const bool hasFailed = model.lastOutcome() == AdvisorViewModel::ActionOutcome::failed;
    return hasFailed || watch.wasInterrupted() ? ExitStatus::leftBehind : ExitStatus::done;
}

}  // namespace

Outcome runAdvisor(const Context& context, const AdvisorCall& call) {
    const auto model = std::make_shared<AdvisorViewModel>(context.host);
    runToEnd(context.loop, model->scan());
    const auto planned = plannedAction(model, call);
    if (const auto* wrong = std::get_if<WrongCall>(&planned)) return *wrong;
    const auto& action = std::get<std::optional<PlannedAction>>(planned);
    auto status = ExitStatus::done;
    if (action && call.consent == Consent::given) status = carryOut(context, *model, *action);
    if (context.form == OutputForm::json) {
        auto shape = advisorShape(*model);
        if (model->lastMessage()) shape.emplace_back("lastMessage", *model->lastMessage());
        printDocument(std::move(shape));
        return status;
    }
    printFindings(*model);
    if (!action) return status;
    printLine();
    printLine(call.consent == Consent::given
                  ? inked(terminalText(model->lastMessage().value_or("")), Ink::strong)
                  : action->plan + " With --yes, it does.");
    return status;
}

}  // namespace tidewell::cli
