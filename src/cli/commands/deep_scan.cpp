#include <algorithm>

#include "cli/commands/commands.h"
#include "cli/progress_line.h"
#include "cli/report.h"
#include "cli/shapes.h"
#include "deepscan/screens/deep_scan_content.h"
#include "kit/byte_text.h"
#include "platform/interruption.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

using Model = std::shared_ptr<DeepScanViewModel>;

constexpr int nameColumns = 44;
constexpr int sizeColumns = 10;

Model scannedModel(const Context& context) {
    const auto model = std::make_shared<DeepScanViewModel>(context.host);
    ProgressLine progress;
    const auto showing = onChanged(model->willChange, [&progress, &model] {
        progress.show(model->scanProgress(), "Looking through your home folder");
    });
    runToEnd(context.loop, model->scan());
    return model;
}

void printCard(const BigItemCard& card) {
    const auto& item = card.item;
    printLine("  " + leftAligned(terminalText(item.name), nameColumns) +
              rightAligned(card.size, sizeColumns) + "  " +
              inked(terminalText(item.location), Ink::faint));
    printLine("    " + std::string(card.badge) + ". " + inked(card.note, Ink::faint));
    if (item.reclaimCommand) printLine("    Reclaim with: " + *item.reclaimCommand);
    printLine("    " + inked(terminalText(item.id), Ink::faint));
}

void printList(const DeepScanViewModel& model) {
    const auto content = deepScanContent(model, {});
    if (content.page == DeepScanContent::Page::nothingFound) {
        printLine(inked(content.placard.title, Ink::strong));
        printLine(content.placard.line);
        return;
    }
    printLine(inked(content.summary, Ink::strong));
    for (const auto& row : content.rail) {
        printLine();
        printLine(inked(row.look.title, Ink::strong) + "  " + inked(row.line, Ink::faint));
        printLine(inked(row.look.subtitle, Ink::faint));
        for (const auto& card : cardsIn(row.bucket, model, {})) printCard(card);
    }
    printLine();
    printLine("Just looking: nothing was moved. tidewell-cli trash ID moves an item to the Trash.");
    if (content.rail.back().bucket == RiskBucket::inTrash)
        printLine("tidewell-cli put-back NAME moves it back.");
}

std::variant<std::vector<BigItem>, WrongCall> wantedItems(const DeepScanViewModel& model,
                                                          const std::vector<std::string>& words) {
    std::vector<std::string> ids;
    for (const auto& item : model.items()) ids.push_back(item.id);
    std::set<std::size_t> seen;
    std::vector<BigItem> wanted;
    for (const auto& word : words) {
        const auto path = namedPath(word, model.host);
        const bool isPath = std::ranges::find(ids, path) != ids.end();
        const auto place = findById(ids, isPath ? path : word, "item in this scan");
        if (const auto* wrong = std::get_if<WrongCall>(&place)) return *wrong;
        const auto index = std::get<std::size_t>(place);
        if (seen.insert(index).second) wanted.push_back(model.items()[index]);
    }
    return wanted;
}

using Outcomes = std::vector<BigItemScanner::TrashOutcome>;

/// Moves one item after the other; a first Ctrl-C ends it behind the item in hand.
Outcomes trashAll(const Context& context, const Model& model, const std::vector<BigItem>& items) {
    const InterruptionWatch watch;
    Outcomes outcomes;
    for (const auto& item : items) {
        runToEnd(context.loop, model->trash(item));
        outcomes.push_back(*model->lastResult());
        if (watch.wasInterrupted()) break;
    }
    return outcomes;
}

Value outcomeShape(const BigItemScanner::TrashOutcome& outcome) {
    Value::Object shape = {
        {"name", outcome.name}, {"freedBytes", outcome.freedBytes}, {"success", outcome.success}};
    if (!outcome.success) shape.emplace_back("reason", outcome.reason);
    return shape;
}

ExitStatus reportPlan(const Context& context, const std::vector<BigItem>& items) {
    if (context.form == OutputForm::json) {
        Value::List ids;
        for (const auto& item : items) ids.emplace_back(item.id);
        printDocument(Value::Object{{"outcomes", Value::List{}}, {"planned", std::move(ids)}});
        return ExitStatus::done;
    }
    for (const auto& item : items) {
        const bool mayGo = isTrashable(item.kind);
        printLine((mayGo ? "Would move to the Trash: " : "Can't be trashed: ") +
                  terminalText(item.id) + "  " + byteText(item.sizeBytes));
    }
    printLine("Nothing was moved. With --yes, it is.");
    return ExitStatus::done;
}

ExitStatus reportOutcomes(const Context& context, const Outcomes& outcomes, std::size_t wanted) {
    auto status = outcomes.size() == wanted ? ExitStatus::done : ExitStatus::leftBehind;
    for (const auto& outcome : outcomes) {
        if (!outcome.success) status = ExitStatus::leftBehind;
        if (context.form == OutputForm::json) continue;
        printLine(inked(terminalText(trashBanner(outcome, context.host.system).text),
                        outcome.success ? Ink::good : Ink::careful));
        if (!outcome.success) printLine("  " + terminalText(outcome.reason));
    }
    if (context.form == OutputForm::json)
        printDocument(Value::Object{{"outcomes", listOf(outcomes, outcomeShape)}});
    return status;
}

}  // namespace

Outcome runDeepScan(const Context& context, const DeepScanCall&) {
    const auto model = scannedModel(context);
    if (context.form == OutputForm::json) {
        printDocument(deepScanShape(*model));
    } else {
        printList(*model);
    }
    tellUnread(model->leftOut(), model->host.system);
    return ExitStatus::done;
}

Outcome runTrash(const Context& context, const TrashCall& call) {
    const auto model = scannedModel(context);
    const auto wanted = wantedItems(*model, call.ids);
    if (const auto* wrong = std::get_if<WrongCall>(&wanted)) return *wrong;
    const auto& items = std::get<std::vector<BigItem>>(wanted);
    if (call.consent == Consent::notGiven) return reportPlan(context, items);
    return reportOutcomes(context, trashAll(context, model, items), items.size());
}

}  // namespace tidewell::cli
