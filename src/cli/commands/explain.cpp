#include <cctype>

#include "cli/commands/commands.h"
#include "cli/report.h"
#include "cli/selection.h"
#include "cli/shapes.h"
#include "deepscan/place_verdict.h"
#include "deepscan/screens/deep_scan_content.h"
#include "kit/byte_text.h"
#include "platform/freed_usage.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

struct Explanation {
    std::string path;
    ByteCount sizeBytes = 0;
    PlaceKnowledge known;
};

std::string_view nameOf(DeletionRule rule) {
    switch (rule) {
        case DeletionRule::protectedPath:
            return "protected";
        case DeletionRule::namedCache:
            return "named-cache";
        case DeletionRule::neverSwept:
            return "never-swept";
        case DeletionRule::deletableRoot:
            return "deletable-root";
        case DeletionRule::outsideHome:
            return "outside-home";
        case DeletionRule::openFolder:
            return "open-folder";
        case DeletionRule::buildFolder:
            return "build-folder";
        case DeletionRule::personalFolder:
            return "personal";
    }
    return {};
}

std::string sentenceFor(DeletionRule rule) {
    std::string why(reason(rule));
    why.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(why.front())));
    if (!allows(rule)) return "No: " + why;
    return (rule == DeletionRule::deletableRoot ? "Yes: " : "Yes, if you pick it: ") + why;
}

std::string_view nameOf(FolderKnowledge::Verdict verdict) {
    switch (verdict) {
        case FolderKnowledge::Verdict::keepUserData:
            return "keepUserData";
        case FolderKnowledge::Verdict::safeToClear:
            return "safeToClear";
        case FolderKnowledge::Verdict::mixed:
            return "mixed";
        case FolderKnowledge::Verdict::systemRecreated:
            return "systemRecreated";
    }
    return {};
}

Explanation explain(const std::string& word, const Host& host) {
    const auto path = namedPath(word, host);
    return {.path = path,
            .sizeBytes = freedUsage(path, host.system).freedBytes,
            .known = PlaceJudge(host).know(path)};
}

Value document(const Explanation& explanation) {
    const auto& known = explanation.known;
    Value::Object shape = {
        {"path", explanation.path},
        {"sizeBytes", explanation.sizeBytes},
        {"kind", cli::nameOf(known.kind)},
    };
    if (known.fact)
        shape.emplace_back("fact", Value::Object{{"verdict", nameOf(known.fact->verdict)},
                                                 {"note", known.fact->note}});
    shape.emplace_back("claimedBy", textList(known.claimedBy));
    shape.emplace_back("deletable", allows(known.rule));
    shape.emplace_back("rule", nameOf(known.rule));
    return shape;
}

void print(const Explanation& explanation) {
    const auto& known = explanation.known;
    printLine(inked(terminalText(explanation.path), Ink::strong));
    printLine("  Size on disk        " + byteText(explanation.sizeBytes));
    printLine("  For the deep scan   " + std::string(badge(known.kind)));
    if (known.fact) printLine("  What it holds       " + std::string(known.fact->note));
    for (const auto& id : known.claimedBy) printLine("  Cleaned as          " + id);
    printLine("  May Clean remove it " +
              inked(sentenceFor(known.rule), allows(known.rule) ? Ink::good : Ink::careful) + " " +
              inked("(" + std::string(nameOf(known.rule)) + ")", Ink::faint));
}

}  // namespace

Outcome runExplain(const Context& context, const ExplainCall& call) {
    const auto explanation = explain(call.path, context.host);
    if (context.form == OutputForm::json) {
        printDocument(document(explanation));
    } else {
        print(explanation);
    }
    return ExitStatus::done;
}

}  // namespace tidewell::cli
