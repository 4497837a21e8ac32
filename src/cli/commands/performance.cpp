#include <algorithm>

#include "cli/commands/commands.h"
#include "cli/report.h"
#include "cli/shapes.h"
#include "performance/screens/performance_content.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

using Model = std::shared_ptr<PerformanceViewModel>;

constexpr int nameColumns = 32;
constexpr int pidColumns = 8;
constexpr int sizeColumns = 10;

Model scannedModel(const Context& context) {
    const auto model = std::make_shared<PerformanceViewModel>(context.host);
    runToEnd(context.loop, model->scan());
    return model;
}

Value runningAppShape(const RunningApp& app) {
    Value::Object shape = {{"pid", std::int64_t{app.id}}, {"name", app.name}};
    if (app.bundleID) shape.emplace_back("bundleID", *app.bundleID);
    if (app.url) shape.emplace_back("path", *app.url);
    shape.emplace_back("memoryBytes", app.memoryBytes);
    if (app.processCount) shape.emplace_back("processCount", *app.processCount);
    return shape;
}

Value loginItemShape(const LoginItem& item) {
    return Value::Object{{"label", item.label},
                         {"program", item.program},
                         {"plist", item.plistURL},
                         {"scope", item.scope}};
}

void printApps(const std::vector<AppMemoryRowContent>& rows) {
    printLine(inked(mostMemoryHeading, Ink::strong));
    for (const auto& [app, fraction, size, isBusy] : rows)
        printLine("  " + rightAligned(std::to_string(app.id), pidColumns) + "  " +
                  leftAligned(terminalText(app.name), nameColumns) +
                  rightAligned(size, sizeColumns) + "  " +
                  inked(terminalText(app.bundleID.value_or("")), Ink::faint));
    if (rows.empty()) printLine("  " + inked("No applications are running.", Ink::faint));
}

void printLoginItems(const std::vector<LoginItemRowContent>& rows) {
    printLine(inked(startupHeading, Ink::strong));
    for (const auto& row : rows) {
        printLine("  " + leftAligned(terminalText(row.label), nameColumns) + row.scope);
        printLine("    " + inked(terminalText(row.program), Ink::faint));
    }
    if (rows.empty()) printLine("  " + inked("Nothing.", Ink::faint));
}

Value quitShape(const PerformanceViewModel& model, Termination termination) {
    Value::Object shape = {{"asked", termination == Termination::asked}};
    if (model.lastMessage()) shape.emplace_back("message", *model.lastMessage());
    return shape;
}

/// Asks, and waits until the list was read again.
Termination askToQuit(const Context& context, const Model& model, const RunningApp& app) {
    const auto watching = onChanged(model->willChange, [&] {
        if (!model->busyPID()) context.loop.quit();
    });
    const auto termination = model->quit(app);
    if (model->busyPID()) context.loop.run();
    return termination;
}

}  // namespace

Outcome runPerformance(const Context& context, const PerformanceCall&) {
    const auto model = scannedModel(context);
    if (context.form == OutputForm::json) {
        printDocument(Value::Object{{"memoryUsed", model->memoryUsed()},
                                    {"memoryTotal", model->memoryTotal()},
                                    {"apps", listOf(model->apps(), runningAppShape)},
                                    {"loginItems", listOf(model->loginItems(), loginItemShape)}});
        return ExitStatus::done;
    }
    const auto content = performanceContent(*model, PerformancePanel::memory);
    printLine(inked(content.subtitle, Ink::strong));
    printLine();
    printApps(content.apps);
    printLine();
    printLoginItems(content.loginItems);
    return ExitStatus::done;
}

Outcome runQuit(const Context& context, const QuitCall& call) {
    const auto model = scannedModel(context);
    const auto apps = model->apps();
    const auto app = std::ranges::find(apps, call.pid, &RunningApp::id);
    if (app == apps.end())
        return WrongCall{"There is no running application with the number " +
                         std::to_string(call.pid)};
    const auto& asked = *app;
    const auto termination = askToQuit(context, model, asked);
    if (context.form == OutputForm::json) {
        printDocument(quitShape(*model, termination));
    } else if (termination == Termination::alreadyEnded) {
        printLine(terminalText(asked.name) + " has already ended.");
    } else {
        printLine(terminalText(*model->lastMessage()));
    }
    return ExitStatus::done;
}

}  // namespace tidewell::cli
