#include "cleanup/cleanup_view_model.h"
#include "cleanup/screens/review_content.h"
#include "cleanup/screens/scan_content.h"
#include "cli/cleaning_tool.h"
#include "cli/commands/commands.h"
#include "cli/item_list.h"
#include "cli/progress_line.h"
#include "cli/report.h"
#include "cli/shapes.h"
#include "kit/byte_text.h"
#include "kit/words.h"

namespace tidewell::cli {

namespace {

using Model = std::shared_ptr<CleanupViewModel>;

void scan(const Context& context, const Model& model) {
    ProgressLine progress;
    const auto showing = onChanged(model->willChange, [&progress, &model] {
        const auto searching = std::string("looking for project artifacts");
        progress.show(model->scanProgress(), model->currentTarget().value_or(searching));
    });
    runToEnd(context.loop, model->startScan());
}

void printReview(const Model& model, Consent consent) {
    const auto review = reviewContent(*model, std::nullopt, model->freeSpaceBefore());
    if (review.isEmpty) {
        printLine(inked(nothingToCleanTitle, Ink::strong));
        printLine(wordsOf(model->servedSystem()).nothingToClean);
        return;
    }
    printLine(inked(review.headline, Ink::strong));
    for (const auto& row : review.categories) {
        printLine();
        printLine(inked(row.title, Ink::strong) + "  " + inked(row.line, Ink::faint));
        printItems(model->itemsIn(row.category));
    }
    printLine();
    printLine(review.pickedLine + ": " +
              inked(review.selectedSize.value_or("nothing"), Ink::strong));
    if (consent == Consent::given) return;
    printLine(
        "Just looking: nothing was deleted. With --yes, what is picked (✓) is deleted for good.");
}

void printResult(const Model& model) {
    const auto result = cleanedContent(*model);
    printLine();
    if (result.reclaimed) {
        printLine(inked(allCleanTitle, Ink::good) + " " + byteText(*result.reclaimed) +
                  " reclaimed.");
    } else {
        printLine(inked(result.ringLine, Ink::strong) + ".");
    }
    printLine(result.freeBefore + " → " + result.freeAfter);
    printFailures(model->failedTitles(), model->servedSystem());
}

Value document(const Model& model, Consent consent) {
    auto shape = cleanShape(*model);
    if (consent == Consent::given) {
        const bool hasCleaned = model->phase() == CleanupViewModel::Phase::done;
        shape.emplace_back("freedBytes", model->freedBytes());
        shape.emplace_back("failedTitles", textList(model->failedTitles()));
        shape.emplace_back("freeSpaceBefore", model->freeSpaceBefore());
        shape.emplace_back("freeSpaceAfter",
                           hasCleaned ? model->freeSpaceAfter() : model->freeSpaceBefore());
    }
    return shape;
}

}  // namespace

Outcome runClean(const Context& context, const CleanCall& call) {
    const auto model = std::make_shared<CleanupViewModel>(context.host);
    scan(context, model);
    if (const auto wrong = tickAsWished(*model, call.selection)) return *wrong;
    if (context.form == OutputForm::text) printReview(model, call.consent);
    auto status = ExitStatus::done;
    if (call.consent == Consent::given)
        status = cleanToEnd(context, *model, model->cleanSelected());
    if (context.form == OutputForm::json) {
        printDocument(document(model, call.consent));
    } else if (model->phase() == CleanupViewModel::Phase::done) {
        printResult(model);
    }
    tellUnread(model->leftOut(), context.host.system);
    return status;
}

}  // namespace tidewell::cli
