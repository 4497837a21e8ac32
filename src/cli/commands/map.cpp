#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <numeric>

#include "cli/commands/commands.h"
#include "cli/progress_line.h"
#include "cli/report.h"
#include "deepscan/disk_map.h"
#include "kit/byte_text.h"
#include "kit/count_text.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

using What = DiskMapNode::What;

constexpr int sizeColumns = 10;
constexpr int barColumns = 10;
constexpr int verdictColumns = 11;

struct VerdictWords {
    std::string_view name;  ///< in documents
    std::string_view word;
    Ink ink;
};

/// In the order of the verdicts.
constexpr std::array<VerdictWords, mapVerdictCount> verdictWords = {{
    {"ticked", "can go", Ink::good},
    {"review", "review", Ink::careful},
    {"rebuildable", "rebuildable", Ink::good},
    {"appData", "app data", Ink::plain},
    {"personal", "yours", Ink::plain},
    {"other", "", Ink::plain},
}};

const VerdictWords& wordsOf(MapVerdict verdict) {
    return verdictWords[static_cast<std::size_t>(verdict)];
}

/// What is shown of a folder: its largest entries, and all others as one.
struct Shown {
    std::vector<std::uint32_t> entries;
    ByteCount restBytes = 0;
    std::uint64_t restCount = 0;
};

Shown shownOf(const DiskMap& map, std::uint32_t folder, const MapCall& call) {
    Shown shown;
    const auto& node = map[folder];
    for (auto at = node.firstChild; at < node.firstChild + node.childCount; ++at) {
        const auto& child = map[at];
        if (child.what != What::smallerItems && shown.entries.size() < std::size_t(call.top)) {
            shown.entries.push_back(at);
        } else {
            shown.restBytes += child.bytes;
            shown.restCount += child.count;
        }
    }
    return shown;
}

std::string wordsForRest(const Shown& shown) {
    if (shown.restCount == 0) return "shared by several of these";
    return countText(static_cast<std::int64_t>(shown.restCount), "smaller item");
}

/// Draws the tree line by line, each entry with what it is of the whole.
class TreePrinter {
 public:
    TreePrinter(const DiskMap& map, const MapCall& call) : map_(map), call_(call) {}

    void print() {
        printEntry(0, terminalText(map_[0].name));
        printBelow(0, "", 1);
    }

 private:
    void printBelow(std::uint32_t folder, const std::string& indent, int level) {
        if (level > call_.depth) return;
        const auto shown = shownOf(map_, folder, call_);
        for (std::size_t i = 0; i < shown.entries.size(); ++i) {
            const bool isLast = i + 1 == shown.entries.size() && shown.restBytes == 0;
            const auto& node = map_[shown.entries[i]];
            const auto name = terminalText(node.name) + (node.what == What::folder ? "/" : "");
            printEntry(shown.entries[i], indent + (isLast ? "└─ " : "├─ ") + name);
            printBelow(shown.entries[i], indent + (isLast ? "   " : "│  "), level + 1);
        }
        if (shown.restBytes > 0)
            printRow(shown.restBytes, {}, indent + "└─ " + inked(wordsForRest(shown), Ink::faint));
    }

    void printEntry(std::uint32_t at, const std::string& text) const {
        const auto& node = map_[at];
        const auto& words = wordsOf(node.verdict.verdict);
        printRow(
            node.bytes, inked(leftAligned(words.word, verdictColumns), words.ink),
            text + (node.isUnread ? inked("  (not all of it could be read)", Ink::faint) : ""));
    }

    void printRow(ByteCount bytes, const std::string& verdict, const std::string& text) const {
        printLine(rightAligned(byteText(bytes), sizeColumns) + "  " + bar(bytes) + "  " +
                  leftAligned(verdict, verdictColumns) + "  " + text);
    }

    std::string bar(ByteCount bytes) const {
        static constexpr std::array parts = {"", "▏", "▎", "▍", "▌", "▋", "▊", "▉"};
        const auto whole = std::max<ByteCount>(map_[0].bytes, 1);
        const auto eighths = static_cast<int>(static_cast<double>(bytes) /
                                              static_cast<double>(whole) * barColumns * 8);
        std::string drawn;
        for (int full = 0; full < eighths / 8; ++full) drawn += "█";
        return leftAligned(drawn + parts[static_cast<std::size_t>(eighths % 8)], barColumns);
    }

    const DiskMap& map_;
    const MapCall& call_;
};

void printSummary(const DiskMap& map) {
    const auto bytes = bytesByVerdict(map);
    std::string line;
    for (std::size_t verdict = 0; verdict < bytes.size(); ++verdict) {
        if (bytes[verdict] == 0) continue;
        const auto word = verdictWords[verdict].word.empty() ? "other" : verdictWords[verdict].word;
        line += (line.empty() ? "" : " · ") + std::string(word) + " " + byteText(bytes[verdict]);
    }
    printLine();
    if (!line.empty()) printLine(line);
    printLine("Just looking: tidewell-cli explain PATH tells more of a thing.");
}

std::string_view nameOf(What what) {
    return what == What::folder ? "folder" : "file";
}

Value shapeOf(const DiskMap& map, std::uint32_t at, const MapCall& call, int level) {
    const auto& node = map[at];
    Value::Object shape = {{at == 0 ? "path" : "name", node.name},
                           {"type", nameOf(node.what)},
                           {"sizeBytes", node.bytes},
                           {"verdict", wordsOf(node.verdict.verdict).name}};
    if (!node.verdict.row.empty()) shape.emplace_back("row", node.verdict.row);
    if (!node.verdict.sentence.empty()) shape.emplace_back("sentence", node.verdict.sentence);
    if (node.isUnread) shape.emplace_back("isUnread", true);
    if (node.childCount == 0 || level >= call.depth) return shape;
    const auto shown = shownOf(map, at, call);
    Value::List entries;
    for (const auto child : shown.entries) entries.push_back(shapeOf(map, child, call, level + 1));
    shape.emplace_back("entries", std::move(entries));
    if (shown.restBytes > 0)
        shape.emplace_back("smaller",
                           Value::Object{{"count", static_cast<std::int64_t>(shown.restCount)},
                                         {"sizeBytes", shown.restBytes}});
    return shape;
}

DiskMap mapped(const Host& host, const std::string& path) {
    using Clock = std::chrono::steady_clock;
    constexpr auto pause = std::chrono::milliseconds(100);
    ProgressLine line;
    std::mutex mutex;
    auto next = Clock::now() + pause;
    return mapDisk(host, path, {.stop = {}, .progress = [&](ByteCount bytes) {
                                    const std::unique_lock lock(mutex, std::try_to_lock);
                                    if (!lock || Clock::now() < next) return;
                                    next = Clock::now() + pause;
                                    line.show("Measured " + byteText(bytes));
                                }});
}

}  // namespace

Outcome runMap(const Context& context, const MapCall& call) {
    const auto path = call.path ? namedPath(*call.path, context.host) : context.host.home;
    const auto map = mapped(context.host, path);
    if (map.isEmpty()) return WrongCall{"There is no folder " + terminalText(path)};
    if (context.form == OutputForm::json) {
        printDocument(shapeOf(map, 0, call, 0));
    } else {
        TreePrinter(map, call).print();
        printSummary(map);
    }
    return ExitStatus::done;
}

}  // namespace tidewell::cli
