#include "cleanup/target_catalogue.h"
#include "cli/commands/commands.h"
#include "cli/report.h"
#include "cli/shapes.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

Value targetShape(const CleanupTarget& target) {
    Value::Object shape = {
        {"id", target.id},
        {"title", target.title},
        {"detail", target.detail},
        {"category", title(target.category)},
        {"safety", nameOf(target.safety)},
        {"paths", textList(target.paths)},
        {"isSweep", target.isSweep()},
    };
    if (!target.programs.empty()) {
        Value::List names;
        for (const auto& program : target.programs) names.push_back(std::string(program.name));
        shape.emplace_back("programs", std::move(names));
    }
    return shape;
}

void printTarget(const CleanupTarget& target) {
    auto line = "  " + inked(target.title, Ink::strong);
    if (target.safety == SafetyLevel::caution) line += "  " + inked("Review", Ink::careful);
    printLine(line + "  " + inked(target.id, Ink::faint));
    printLine("    " + target.detail);
    for (const auto& path : target.paths)
        printLine("    " + inked(terminalText(path) + (target.isSweep() ? "/*" : ""), Ink::faint));
}

}  // namespace

Outcome runCatalogue(const Context& context, const CatalogueCall&) {
    const auto targets = cleanupCatalogue(context.host);
    if (context.form == OutputForm::json) {
        Value::List list;
        for (const auto& target : targets) list.push_back(targetShape(target));
        printDocument(Value::Object{{"targets", std::move(list)}});
        return ExitStatus::done;
    }
    std::optional<CleanupCategory> shown;
    for (const auto& target : targets) {
        if (shown != target.category) {
            if (shown) printLine();
            printLine(inked(title(target.category), Ink::strong));
            shown = target.category;
        }
        printTarget(target);
    }
    return ExitStatus::done;
}

}  // namespace tidewell::cli
