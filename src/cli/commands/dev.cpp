#include "cli/cleaning_tool.h"
#include "cli/commands/commands.h"
#include "cli/item_list.h"
#include "cli/progress_line.h"
#include "cli/report.h"
#include "cli/shapes.h"
#include "devmode/dev_mode_view_model.h"
#include "devmode/screens/dev_mode_content.h"
#include "kit/byte_text.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

using Model = std::shared_ptr<DevModeViewModel>;

void scan(const Context& context, const Model& model) {
    ProgressLine progress;
    const auto showing = onChanged(model->willChange, [&progress, &model] {
        progress.show(model->scanProgress(), devScanningLine);
    });
    runToEnd(context.loop, model->scan());
}

void printModels(const std::vector<AIModelStore>& models) {
    printLine("  " + std::string(devModelsLine));
    for (const auto& store : models) {
        printLine("    " + store.tool + "  " + byteText(store.sizeBytes) + "  " +
                  inked(terminalText(store.path()), Ink::faint));
        printLine("      " + inked(store.note, Ink::faint));
    }
}

void printReview(const DevModeViewModel& model, Consent consent) {
    const auto review = devReviewContent(model);
    printLine(inked(review.headline, Ink::strong));
    for (const auto& group : devRail(model.items(), model.models())) {
        printLine();
        printLine(inked(group.label, Ink::strong) + "  " + inked(group.line, Ink::faint));
        if (group.isModels) {
            printModels(model.models());
        } else {
            printItems(group.items);
        }
    }
    printLine();
    printLine(review.pickedLine + ": " + inked(review.selectedSize, Ink::strong));
    if (consent == Consent::notGiven) printLine(justLookedLine);
}

Value groupShape(const RailGroup& group) {
    return Value::Object{{"id", group.id},
                         {"label", group.label},
                         {"count", static_cast<std::int64_t>(group.count)},
                         {"bytes", group.bytes}};
}

Value document(const DevModeViewModel& model, Consent consent) {
    Value::List groups;
    for (const auto& group : devRail(model.items(), model.models()))
        groups.push_back(groupShape(group));
    Value::Object shape = {
        {"items", listOf(model.items(), itemShape)},
        {"itemsBytes", model.itemsBytes()},
        {"selectedBytes", model.selectedBytes()},
        {"models", listOf(model.models(), modelStoreShape)},
        {"modelsBytes", model.modelsBytes()},
        {"groups", std::move(groups)},
    };
    if (consent == Consent::given) {
        shape.emplace_back("freedBytes", model.freedBytes());
        shape.emplace_back("failedTitles", textList(model.failedTitles()));
    }
    return shape;
}

}  // namespace

Outcome runDev(const Context& context, const DevCall& call) {
    const auto model = std::make_shared<DevModeViewModel>(context.host);
    scan(context, model);
    if (const auto wrong = tickAsWished(*model, call.selection)) return *wrong;
    if (context.form == OutputForm::text) printReview(*model, call.consent);
    auto status = ExitStatus::done;
    if (call.consent == Consent::given) status = cleanToEnd(context, *model, model->clean());
    if (context.form == OutputForm::json) {
        printDocument(document(*model, call.consent));
    } else if (model->phase() == DevModeViewModel::Phase::done) {
        printLine();
        printLine(inked(devDoneTitle(*model), Ink::good));
        printFailures(model->failedTitles(), model->servedSystem());
    }
    tellUnread(model->leftOut(), context.host.system);
    return status;
}

}  // namespace tidewell::cli
