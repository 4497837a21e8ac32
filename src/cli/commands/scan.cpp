#include "cli/commands/commands.h"
#include "cli/progress_line.h"
#include "cli/report.h"
#include "cli/shapes.h"
#include "kit/byte_text.h"
#include "platform/dates.h"
#include "platform/text.h"
#include "shell/screens/smart_scan_content.h"

namespace tidewell::cli {

namespace {

using Controller = std::shared_ptr<SmartScanController>;

constexpr int toolColumns = 12;

Controller makeController(const Host& host) {
    return std::make_shared<SmartScanController>(
        std::make_shared<CleanupViewModel>(host), std::make_shared<AppsViewModel>(host),
        std::make_shared<DeepScanViewModel>(host), std::make_shared<AdvisorViewModel>(host));
}

/// Runs the smart scan to its end, a line for what it does just now.
void scanEverything(const Context& context, const Controller& controller) {
    ProgressLine progress;
    const auto showing = onChanged(controller->willChange, [&] {
        const auto content = smartScanContent(*controller, now());
        progress.show(content.fraction, std::string(content.title) + " " + content.line);
        if (controller->phase() == SmartScanController::Phase::done) context.loop.quit();
    });
    controller->start();
    context.loop.run();
}

void printResult(const SmartScanController& controller) {
    const auto content = smartScanContent(controller, now());
    const auto found = content.centre.figure.empty()
                           ? std::string(content.centre.caption)
                           : content.centre.figure + " " + std::string(content.centre.caption);
    printLine(inked(std::string(content.title) + " " + found + ".", Ink::strong));
    printLine();
    for (const auto& card : content.cards)
        printLine("  " + leftAligned(card.title, toolColumns) +
                  leftAligned(card.line, toolColumns) +
                  inked("tidewell-cli " + std::string(section(card.section).command), Ink::faint));
    if (!content.insights.empty()) printLine();
    for (const auto& insight : content.insights) printLine("  • " + terminalText(insight.text));
    printLine();
    printLine("Nothing deleted yet.");
    if (content.primaryAction)
        printLine(
            "Next: " + content.primaryAction->label + " with " +
            inked("tidewell-cli " + std::string(section(content.primaryAction->opens).command),
                  Ink::strong));
}

Value document(const SmartScanController& controller) {
    const auto content = smartScanContent(controller, now());
    Value::List insights;
    for (const auto& insight : content.insights) insights.emplace_back(insight.text);
    Value::Object shape = {
        {"clean", cleanShape(*controller.cleanup)},
        {"apps", appsShape(*controller.apps)},
        {"deepScan", deepScanShape(*controller.deepScan)},
        {"advisor", advisorShape(*controller.advisor)},
        {"foundBytes", foundBytes(controller)},
        {"insights", std::move(insights)},
    };
    if (content.primaryAction)
        shape.emplace_back("primaryAction",
                           Value::Object{{"label", content.primaryAction->label},
                                         {"opens", nameOf(content.primaryAction->opens)}});
    return shape;
}

}  // namespace

Outcome runScan(const Context& context, const ScanCall&) {
    const auto controller = makeController(context.host);
    scanEverything(context, controller);
    if (context.form == OutputForm::json) {
        printDocument(document(*controller));
    } else {
        printResult(*controller);
    }
    return ExitStatus::done;
}

}  // namespace tidewell::cli
