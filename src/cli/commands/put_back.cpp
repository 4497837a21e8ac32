#include <algorithm>
#include <iterator>

#include "cli/commands/commands.h"
#include "cli/report.h"
#include "cli/selection.h"
#include "cli/shapes.h"
#include "kit/byte_text.h"
#include "platform/dates.h"
#include "platform/freed_usage.h"
#include "platform/interruption.h"
#include "platform/removal.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

using Items = std::vector<TrashedItem>;

constexpr int nameColumns = 44;
constexpr int sizeColumns = 10;

constexpr auto unknownOrigin = "The Trash does not say where it came from";

bool isCalled(const std::optional<std::string>& bytes, const std::string& word) {
    return bytes && (*bytes == word || wellFormedText(*bytes) == word);
}

/// By its name in the Trash, by where it came from, or by where it lies.
bool isMeant(const TrashedItem& item, const std::string& word, const std::string& path) {
    return isCalled(item.name, word) || isCalled(item.origin, word) || isCalled(item.path, word) ||
           item.origin == path || item.path == path;
}

std::variant<TrashedItem, WrongCall> findItem(const Items& items, const std::string& word,
                                              const Host& host) {
    const auto path = namedPath(word, host);
    Items found;
    std::ranges::copy_if(items, std::back_inserter(found),
                         [&](const TrashedItem& item) { return isMeant(item, word, path); });
    if (found.size() == 1) return found.front();
    if (found.empty())
        return WrongCall{"Nothing in the Trash is called or came from " + terminalText(word)};
    std::string places;
    for (const auto& item : found) places += "\n  " + terminalText(item.path);
    return WrongCall{"Several things in the Trash are called or came from " + terminalText(word) +
                     ": name one by where it lies" + places};
}

std::variant<Items, WrongCall> wantedItems(const Items& items,
                                           const std::vector<std::string>& words,
                                           const Host& host) {
    Items wanted;
    for (const auto& word : words) {
        auto item = findItem(items, word, host);
        if (const auto* wrong = std::get_if<WrongCall>(&item)) return *wrong;
        auto& found = std::get<TrashedItem>(item);
        if (std::ranges::find(wanted, found) == wanted.end()) wanted.push_back(std::move(found));
    }
    return wanted;
}

ByteCount sizeOf(const TrashedItem& item, const Host& host) {
    return freedUsage(item.path, host.system).freedBytes;
}

ExitStatus list(const Context& context, const Items& items) {
    if (context.form == OutputForm::json) {
        Value::List entries;
        for (const auto& item : items)
            entries.push_back(trashedItemShape(item, sizeOf(item, context.host)));
        printDocument(Value::Object{{"items", std::move(entries)}});
        return ExitStatus::done;
    }
    if (items.empty()) printLine("The Trash is empty.");
    for (const auto& item : items) {
        printLine("  " + leftAligned(terminalText(item.name), nameColumns) +
                  rightAligned(byteText(sizeOf(item, context.host)), sizeColumns) + "  " +
                  (item.deletedAt ? relativeDateInWords(*item.deletedAt, now()) : ""));
        printLine("    " + inked(terminalText(item.origin.value_or(unknownOrigin)), Ink::faint));
    }
    return ExitStatus::done;
}

ExitStatus reportPlan(const Context& context, const Items& items) {
    if (context.form == OutputForm::json) {
        Value::List names;
        for (const auto& item : items) names.emplace_back(item.name);
        printDocument(Value::Object{{"outcomes", Value::List{}}, {"planned", std::move(names)}});
        return ExitStatus::done;
    }
    for (const auto& item : items)
        printLine(terminalText(item.name) + ": " +
                  (item.origin ? "would go back to " + terminalText(*item.origin) : unknownOrigin));
    printLine("Nothing was put back. With --yes, it is.");
    return ExitStatus::done;
}

Value outcomeShape(const TrashedItem& item, const PuttingBack& outcome) {
    Value::Object shape = {{"name", item.name}, {"success", outcome.place.has_value()}};
    if (!outcome.place) shape.emplace_back("reason", outcome.problem);
    return shape;
}

std::string outcomeLine(const TrashedItem& item, const PuttingBack& outcome) {
    const auto name = terminalText(item.name);
    if (outcome.place)
        return inked("Put back " + name + " to " + terminalText(*outcome.place), Ink::good);
    return inked(name + " stays in the Trash. " + outcome.problem, Ink::careful);
}

/// One after the other; a first Ctrl-C ends it behind the item in hand.
ExitStatus putAllBack(const Context& context, const Items& items) {
    const InterruptionWatch watch;
    auto status = ExitStatus::done;
    Value::List outcomes;
    for (const auto& item : items) {
        const auto outcome = putBack(item, context.host);
        if (!outcome.place) status = ExitStatus::leftBehind;
        outcomes.push_back(outcomeShape(item, outcome));
        if (context.form == OutputForm::text) printLine(outcomeLine(item, outcome));
        if (watch.wasInterrupted()) break;
    }
    if (outcomes.size() < items.size()) status = ExitStatus::leftBehind;
    if (context.form == OutputForm::json)
        printDocument(Value::Object{{"outcomes", std::move(outcomes)}});
    return status;
}

}  // namespace

Outcome runPutBack(const Context& context, const PutBackCall& call) {
    const auto items = trashedItems(context.host);
    if (call.names.empty()) return list(context, items);
    const auto wanted = wantedItems(items, call.names, context.host);
    if (const auto* wrong = std::get_if<WrongCall>(&wanted)) return *wrong;
    const auto& found = std::get<Items>(wanted);
    return call.consent == Consent::given ? putAllBack(context, found) : reportPlan(context, found);
}

}  // namespace tidewell::cli
