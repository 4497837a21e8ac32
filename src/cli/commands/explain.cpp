#include <algorithm>

#include "cleanup/deletion_guard.h"
#include "cleanup/target_catalogue.h"
#include "cli/commands/commands.h"
#include "cli/report.h"
#include "cli/selection.h"
#include "cli/shapes.h"
#include "deepscan/screens/deep_scan_content.h"
#include "kit/byte_text.h"
#include "platform/freed_usage.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

/// All that the program knows of a path, whether something stands there or not.
struct Explanation {
    std::string path;
    ByteCount sizeBytes = 0;
    BigItem::Kind kind = BigItem::Kind::other;
    std::optional<FolderKnowledge::Fact> fact;
    std::vector<std::string> claimedBy;
    DeletionRule rule = DeletionRule::outsideHome;
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

std::string_view sentenceFor(DeletionRule rule) {
    switch (rule) {
        case DeletionRule::protectedPath:
            return "No: keys and credentials are never removed.";
        case DeletionRule::namedCache:
            return "Yes, if you pick it: a cache inside a program's protected profile.";
        case DeletionRule::neverSwept:
            return "No: it looks like a cache, but holds what nothing can make anew.";
        case DeletionRule::deletableRoot:
            return "Yes: scratch space that the system clears anyway.";
        case DeletionRule::outsideHome:
            return "No: it lies outside your home folder.";
        case DeletionRule::openFolder:
            return "Yes, if you pick it: it lies outside your own files.";
        case DeletionRule::buildFolder:
            return "Yes, if you pick it: build output of a project.";
        case DeletionRule::personalFolder:
            return "No: these are your own files.";
    }
    return {};
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

std::vector<std::string> claimingRows(const std::string& path, const Host& host) {
    std::vector<std::string> ids;
    for (const auto& target : cleanupCatalogue(host)) {
        const bool claims = std::ranges::any_of(target.paths, [&](const std::string& stored) {
            return TablePath(stored, host).covers(path);
        });
        if (claims) ids.push_back(target.id);
    }
    return ids;
}

Explanation explain(const std::string& word, const Host& host) {
    const auto path = namedPath(word, host);
    const auto fact = FolderKnowledge::fact(path, host);
    return {
        .path = path,
        .sizeBytes = freedUsage(path, host.system).freedBytes,
        .kind = finalKind(classifyPlace(path, host, KeptPlaces(host)), fact),
        .fact = fact,
        .claimedBy = claimingRows(path, host),
        .rule = DeletionGuard(host).verdict(path),
    };
}

Value document(const Explanation& known) {
    Value::Object shape = {
        {"path", known.path},
        {"sizeBytes", known.sizeBytes},
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

void print(const Explanation& known) {
    printLine(inked(terminalText(known.path), Ink::strong));
    printLine("  Size on disk        " + byteText(known.sizeBytes));
    printLine("  For the deep scan   " + std::string(badge(known.kind)));
    if (known.fact) printLine("  What it holds       " + std::string(known.fact->note));
    for (const auto& id : known.claimedBy) printLine("  Cleaned as          " + id);
    printLine("  May Clean remove it " +
              inked(sentenceFor(known.rule), allows(known.rule) ? Ink::good : Ink::careful) + " " +
              inked("(" + std::string(nameOf(known.rule)) + ")", Ink::faint));
}

}  // namespace

Outcome runExplain(const Context& context, const ExplainCall& call) {
    const auto known = explain(call.path, context.host);
    if (context.form == OutputForm::json) {
        printDocument(document(known));
    } else {
        print(known);
    }
    return ExitStatus::done;
}

}  // namespace tidewell::cli
