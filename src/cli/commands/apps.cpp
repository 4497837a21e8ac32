#include <algorithm>

#include "apps/screens/apps_content.h"
#include "cli/commands/commands.h"
#include "cli/progress_line.h"
#include "cli/report.h"
#include "cli/shapes.h"
#include "kit/byte_text.h"
#include "kit/words.h"
#include "platform/dates.h"
#include "platform/interruption.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

using Model = std::shared_ptr<AppsViewModel>;

constexpr int nameColumns = 32;
constexpr int sizeColumns = 10;

Model scannedModel(const Context& context) {
    const auto model = std::make_shared<AppsViewModel>(context.host);
    ProgressLine progress;
    const auto showing = onChanged(model->willChange, [&] {
        progress.show(model->scanProgress(), wordsOf(context.host.system).readingApplications);
    });
    runToEnd(context.loop, model->scan());
    return model;
}

void printApp(const InstalledApp& app) {
    const auto card = appCard(app, now());
    const auto mark = label(card.mark);
    printLine("  " + leftAligned(terminalText(app.name), nameColumns) +
              rightAligned(card.size, sizeColumns) + "  " + terminalText(card.line) +
              (mark.empty() ? "" : "  " + inked(mark, Ink::careful)));
    const auto kind = app.kind == AppKind::bundle ? "" : "  " + std::string(labelOf(app.kind));
    printLine("    " + inked(terminalText(app.id) + kind, Ink::faint) +
              (app.id == app.url ? "" : "  " + inked(terminalText(app.url), Ink::faint)));
}

/// By its id or its bundle's path. An id that two applications share is a wrong call.
std::variant<InstalledApp, WrongCall> findApp(const std::vector<InstalledApp>& apps,
                                              const std::string& word) {
    std::vector<const InstalledApp*> found;
    for (const auto& app : apps) {
        if (app.url == word) return app;
        if (app.id == word || wellFormedText(app.id) == word) found.push_back(&app);
    }
    if (found.size() == 1) return *found.front();
    if (found.empty())
        return WrongCall{"There is no application with the id or path " + terminalText(word)};
    std::string paths;
    for (const auto* app : found) paths += "\n  " + terminalText(app->url);
    return WrongCall{"Several applications have the id " + terminalText(word) +
                     ": name one by its path" + paths};
}

/// With what goes marked where not all of it does by itself.
Value chosenLeftoverShape(const LeftoverFile& leftover) {
    auto shape = *leftoverShape(leftover).object();
    shape.emplace_back("isSelected", leftover.isSelected);
    return shape;
}

Value::Object planShape(const UninstallPlan& plan) {
    const bool isBundle = plan.app.kind == AppKind::bundle;
    Value::Object shape = {
        {"app", appShape(plan.app)},
        {"leftovers", listOf(plan.leftovers, isBundle ? leftoverShape : chosenLeftoverShape)},
        {"totalBytes", plan.totalBytes()}};
    if (!plan.command) return shape;
    shape.emplace_back("command", plan.command->text);
    shape.emplace_back("takesAlong", textList(plan.command->takesAlong));
    shape.emplace_back("neededByDesktop", textList(plan.command->neededByDesktop));
    return shape;
}

/// Ticks as a call wants; a path that is none of the leftovers' is a wrong call.
std::optional<WrongCall> choose(AppsViewModel& model, const UninstallCall& call) {
    const auto set = [&model](const std::string& path, bool isWanted) -> std::optional<WrongCall> {
        const auto leftovers = model.pendingPlan()->leftovers;
        const auto place = std::ranges::find(leftovers, path, &LeftoverFile::url);
        if (place == leftovers.end())
            return WrongCall{"It leaves nothing behind at " + terminalText(path)};
        if (place->isSelected != isWanted) model.toggleLeftover(path);
        return std::nullopt;
    };
    for (const auto& path : call.also)
        if (auto wrong = set(path, true)) return wrong;
    for (const auto& path : call.without)
        if (auto wrong = set(path, false)) return wrong;
    return std::nullopt;
}

Value resultShape(const UninstallResult& result) {
    return Value::Object{{"appName", result.appName},
                         {"movedCount", result.movedCount},
                         {"freedBytes", result.freedBytes},
                         {"failed", textList(result.failed)},
                         {"appBundleMoved", result.appBundleMoved}};
}

void printCommand(const CommandContent& command) {
    printLine("  " + terminalText(command.lead));
    printLine("    " + inked(terminalText(command.command), Ink::strong));
    if (!command.note.empty()) printLine("  " + terminalText(command.note));
    if (!command.warning.empty()) printLine("  " + inked(terminalText(command.warning), Ink::bad));
}

void printPlan(const UninstallPlan& plan) {
    const auto sheet = uninstallSheet(plan);
    const bool hasTicks = plan.app.kind != AppKind::bundle;
    printLine(inked(terminalText(sheet.title), Ink::strong));
    printLine(terminalText(sheet.line));
    if (sheet.command)
        printCommand(*sheet.command);
    else
        printLine((hasTicks ? "  [x] " : "  ") +
                  rightAligned(byteText(plan.app.sizeBytes), sizeColumns) + "  " +
                  terminalText(plan.app.url));
    for (const auto& leftover : plan.leftovers)
        printLine(std::string(!hasTicks             ? "  "
                              : leftover.isSelected ? "  [x] "
                                                    : "  [ ] ") +
                  rightAligned(byteText(leftover.sizeBytes), sizeColumns) + "  " +
                  terminalText(leftover.url) + "  " + inked(leftover.category, Ink::faint));
    if (plan.leftovers.empty()) printLine("  " + inked(sheet.emptyNote, Ink::faint));
}

/// A scan, and the plan of the one application that the call names.
struct Planned {
    Model model;
    UninstallPlan plan;
};

std::variant<Planned, WrongCall> planFor(const Context& context, const UninstallCall& call) {
    const auto model = scannedModel(context);
    const auto app = findApp(model->apps(), call.app);
    if (const auto* wrong = std::get_if<WrongCall>(&app)) return *wrong;
    runToEnd(context.loop, model->prepareUninstall(std::get<InstalledApp>(app)));
    if (auto wrong = choose(*model, call)) return *wrong;
    return Planned{model, *model->pendingPlan()};
}

std::string_view wordsAboutConsent(const UninstallPlan& plan) {
    if (plan.itemCount() == 0) return "Nothing here is for this program to move.";
    if (uninstallWay(plan.app.kind) == UninstallWay::ownTool)
        return "Nothing was done. With --yes, flatpak uninstalls it and what is ticked goes to the "
               "Trash.";
    return "Nothing was moved. With --yes, what is ticked goes to the Trash.";
}

ExitStatus carryOut(const Context& context, const Planned& planned) {
    const InterruptionWatch watch;
    runToEnd(context.loop, planned.model->confirmUninstall());
    const auto& result = *planned.model->lastResult();
    if (context.form == OutputForm::json) {
        auto shape = planShape(planned.plan);
        shape.emplace_back("result", resultShape(result));
        printDocument(std::move(shape));
    } else {
        const auto banner = resultBanner(result);
        printLine();
        printLine(inked(terminalText(banner.title),
                        banner.tone == ResultBanner::Tone::success ? Ink::good : Ink::careful));
        printLine(terminalText(banner.line));
    }
    const bool leftSomething = !result.failed.empty() || watch.wasInterrupted();
    return leftSomething ? ExitStatus::leftBehind : ExitStatus::done;
}

}  // namespace

Outcome runApps(const Context& context, const AppsCall& call) {
    const auto model = scannedModel(context);
    model->sortOrder = call.order;
    if (context.form == OutputForm::json) {
        printDocument(appsShape(*model));
        return ExitStatus::done;
    }
    const auto content = appsContent(*model, now());
    printLine(inked(terminalText(content.subtitle), Ink::strong));
    if (content.notice) printLine(content.notice->line);
    for (const auto& app : model->sortedApps()) printApp(app);
    return ExitStatus::done;
}

Outcome runLeftovers(const Context& context, const LeftoversCall& call) {
    const auto planned = planFor(context, {.app = call.app});
    if (const auto* wrong = std::get_if<WrongCall>(&planned)) return *wrong;
    const auto& plan = std::get<Planned>(planned).plan;
    if (context.form == OutputForm::json) {
        printDocument(planShape(plan));
    } else {
        printPlan(plan);
    }
    return ExitStatus::done;
}

Outcome runUninstall(const Context& context, const UninstallCall& call) {
    const auto found = planFor(context, call);
    if (const auto* wrong = std::get_if<WrongCall>(&found)) return *wrong;
    const auto& planned = std::get<Planned>(found);
    if (context.form == OutputForm::text) printPlan(planned.plan);
    const bool goesAny = planned.plan.itemCount() > 0;
    if (call.consent == Consent::given && goesAny) return carryOut(context, planned);
    if (context.form == OutputForm::json) {
        printDocument(planShape(planned.plan));
    } else {
        printLine();
        const bool isBundle = planned.plan.app.kind == AppKind::bundle;
        printLine(isBundle ? "Nothing was moved. With --yes, all of this goes to the Trash."
                           : wordsAboutConsent(planned.plan));
    }
    return ExitStatus::done;
}

}  // namespace tidewell::cli
