#include "deepscan/screens/disk_map_content.h"

#include <algorithm>
#include <array>

#include "deepscan/big_item_trash_guard.h"
#include "deepscan/screens/deep_scan_content.h"
#include "kit/byte_text.h"
#include "kit/count_text.h"
#include "kit/percent_text.h"
#include "kit/words.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

using What = DiskMapNode::What;

struct VerdictRow {
    std::string_view title;
    std::string_view symbol;
    RiskBucket bucket;  ///< whose colour it has
};

/// In the order of the verdicts.
constexpr std::array<VerdictRow, mapVerdictCount> verdictRows = {{
    {"Can go", "checkmark.circle.fill", RiskBucket::safe},
    {"Check first", "exclamationmark.circle.fill", RiskBucket::review},
    {"Made again", "arrow.triangle.2.circlepath", RiskBucket::installer},
    {"App data", "cube.box.fill", RiskBucket::container},
    {"Your stuff", "hand.raised.fill", RiskBucket::personal},
    {"Other", "questionmark.circle.fill", RiskBucket::other},
}};

constexpr Color otherColor = {0.62, 0.66, 0.70};

bool mayBeTrashed(const DiskMapNode& node, const BigItem& item, const Host& host) {
    return node.what != What::smallerItems && isTrashable(item.kind) &&
           isDeepInHome(item.path(), host.home);
}

std::string_view labelFor(RowTool tool) {
    switch (tool) {
        case RowTool::none:
            return {};
        case RowTool::clean:
            return "Show in Clean";
        case RowTool::devMode:
            return "Show in Dev Mode";
    }
    return {};
}

std::string shareOf(const DiskMap& map, std::uint32_t node) {
    if (node == 0) return {};
    const auto above = map[node].parent;
    const auto whole = map[above].bytes;
    if (whole <= 0) return {};
    const double share = static_cast<double>(map[node].bytes) / static_cast<double>(whole);
    return " · " + percentText(share) + " of " + shownName(map, above);
}

}  // namespace

MapVerdictLook look(MapVerdict verdict) {
    const auto& row = verdictRows.at(static_cast<std::size_t>(verdict));
    const auto color = look(row.bucket).color;
    return {.title = row.title,
            .symbol = row.symbol,
            .color = row.bucket == RiskBucket::other ? otherColor : color};
}

std::string mapSummary(const DiskMap& map) {
    const auto bytes = bytesByVerdict(map);
    const auto mayGo = bytes[static_cast<std::size_t>(MapVerdict::ticked)] +
                       bytes[static_cast<std::size_t>(MapVerdict::rebuildable)];
    auto summary = byteText(map[0].bytes) + " in your home folder";
    if (mayGo > 0) summary += " • " + byteText(mayGo) + " can go";
    return summary;
}

std::vector<MapLegendRow> mapLegend(const DiskMap& map, std::uint32_t top,
                                    std::optional<MapVerdict> filter) {
    const auto bytes = bytesByVerdict(map, top);
    std::vector<MapLegendRow> rows;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto verdict = static_cast<MapVerdict>(at);
        if (bytes[at] == 0 && filter != verdict) continue;
        rows.push_back({.verdict = verdict,
                        .look = look(verdict),
                        .size = byteText(bytes[at]),
                        .isChosen = filter == verdict});
    }
    return rows;
}

std::vector<MapCrumb> mapCrumbs(const DiskMap& map, std::uint32_t top) {
    std::vector<MapCrumb> crumbs;
    for (auto at = top;; at = map[at].parent) {
        crumbs.push_back({.node = at, .name = shownName(map, at), .isLast = at == top});
        if (at == 0) break;
    }
    std::ranges::reverse(crumbs);
    return crumbs;
}

std::string shownName(const DiskMap& map, std::uint32_t node) {
    const auto& shown = map[node];
    if (shown.what == What::smallerItems)
        return shown.count == 0 ? "Shared by several"
                                : countText(static_cast<std::int64_t>(shown.count), "smaller item");
    return node == 0 ? "Home" : shown.name;
}

MapThing mapThing(const DiskMapViewModel& model, std::uint32_t node) {
    const auto& map = model.map();
    const auto& shown = map[node];
    const auto item = model.item(node);
    MapThing thing{.symbol = shown.what == What::folder ? "folder.fill" : "doc.fill",
                   .name = shownName(map, node),
                   .figure = byteText(shown.bytes) + shareOf(map, node),
                   .look = look(shown.verdict.verdict),
                   .sentence = shown.verdict.sentence,
                   .revealHelp = wordsOf(model.host().system).reveal,
                   .trashHelp = {},
                   .showLabel = labelFor(shown.verdict.tool),
                   .tool = shown.verdict.tool};
    if (!shown.verdict.row.empty()) thing.sentence = shown.verdict.row + ": " + thing.sentence;
    if (shown.isUnread) {
        if (!thing.sentence.empty()) thing.sentence += " ";
        thing.sentence += "Not all of it could be read.";
    }
    if (mayBeTrashed(shown, item, model.host()))
        thing.trashHelp = "Move " + item.name + " to Trash";
    return thing;
}

}  // namespace tidewell
