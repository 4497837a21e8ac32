#include "deepscan/disk_map.h"

#include <algorithm>
#include <utility>

#include "platform/files.h"
#include "platform/folder_sizes.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

/// What lies deeper is what its folder is: nothing is known of such places by themselves.
constexpr int deepestJudged = 40;

DiskMapNode::What whatOf(SizedEntry::Type type) {
    switch (type) {
        case SizedEntry::Type::folder:
            return DiskMapNode::What::folder;
        case SizedEntry::Type::file:
            return DiskMapNode::What::file;
        case SizedEntry::Type::smallerEntries:
            return DiskMapNode::What::smallerItems;
    }
    return DiskMapNode::What::folder;
}

std::vector<DiskMapNode> nodesOf(FolderSizes sizes, const std::string& top) {
    std::vector<DiskMapNode> nodes;
    nodes.reserve(sizes.size());
    for (auto& entry : sizes)
        nodes.push_back({.name = std::move(entry.name),
                         .what = whatOf(entry.type),
                         .bytes = entry.bytes,
                         .count = entry.count,
                         .isUnread = entry.isUnread,
                         .parent = entry.parent,
                         .firstChild = entry.firstChild,
                         .childCount = entry.childCount});
    if (!nodes.empty()) nodes.front().name = top;
    return nodes;
}

template <class Visit>
void forEachAtOrBelow(const DiskMap& map, std::uint32_t node, const Visit& visit) {
    for (std::vector<std::uint32_t> left = {node}; !left.empty();) {
        const auto at = left.back();
        left.pop_back();
        visit(at);
        for (std::uint32_t child = 0; child < map[at].childCount; ++child)
            left.push_back(map[at].firstChild + child);
    }
}

}  // namespace

std::string DiskMap::path(std::uint32_t node) const {
    std::vector<std::string_view> names;
    for (; node != 0; node = nodes_[node].parent)
        if (nodes_[node].what != DiskMapNode::What::smallerItems)
            names.push_back(nodes_[node].name);
    std::string path = nodes_.empty() ? std::string() : nodes_.front().name;
    for (; !names.empty(); names.pop_back()) {
        if (!path.ends_with('/')) path += '/';
        path += names.back();
    }
    return path;
}

std::optional<std::uint32_t> DiskMap::find(std::string_view path) const {
    if (nodes_.empty() || !isAtOrBelow(path, nodes_.front().name)) return std::nullopt;
    std::uint32_t at = 0;
    for (const auto piece : pathPieces(path.substr(nodes_.front().name.size()))) {
        const auto children =
            std::span(nodes_).subspan(nodes_[at].firstChild, nodes_[at].childCount);
        const auto child = std::ranges::find_if(children, [piece](const DiskMapNode& node) {
            return node.what != DiskMapNode::What::smallerItems && node.name == piece;
        });
        if (child == children.end()) break;
        at = nodes_[at].firstChild + static_cast<std::uint32_t>(child - children.begin());
    }
    return at;
}

DiskMap::Taken DiskMap::take(std::uint32_t node) {
    if (node == 0) return {};
    Taken taken{.node = node, .sizes = {}};
    grow(nodes_[node].parent, -nodes_[node].bytes);
    forEachAtOrBelow(*this, node, [&](std::uint32_t gone) {
        taken.sizes.emplace_back(gone, std::exchange(nodes_[gone].bytes, 0));
    });
    return taken;
}

void DiskMap::putBack(const Taken& taken) {
    if (taken.sizes.empty()) return;
    for (const auto& [node, bytes] : taken.sizes) nodes_[node].bytes = bytes;
    grow(nodes_[taken.node].parent, nodes_[taken.node].bytes);
}

void DiskMap::grow(std::uint32_t above, ByteCount bytes) {
    for (;; above = nodes_[above].parent) {
        nodes_[above].bytes += bytes;
        if (above == 0) return;
    }
}

std::array<ByteCount, mapVerdictCount> bytesByVerdict(const DiskMap& map, std::uint32_t node) {
    std::array<ByteCount, mapVerdictCount> bytes = {};
    if (map.isEmpty()) return bytes;
    forEachAtOrBelow(map, node, [&](std::uint32_t at) {
        const auto& part = map[at];
        if (part.childCount == 0)
            bytes[static_cast<std::size_t>(part.verdict.verdict)] += part.bytes;
    });
    return bytes;
}

DiskMap mapDisk(const Host& host, const std::string& folder, const DiskMapping& how) {
    auto nodes = nodesOf(
        folderSizes(folder, {.system = host.system, .stop = how.stop, .progress = how.progress}),
        folder);
    if (nodes.empty()) return {};
    const auto real = realLocation(folder).value_or(folder);
    const DiskMap unjudged(nodes);
    PlaceJudge judge(host);
    std::vector<int> levels(nodes.size());
    for (std::uint32_t at = 0; at < nodes.size(); ++at) {
        if (how.stop.stop_requested()) return {};
        auto& node = nodes[at];
        if (at > 0) levels[at] = levels[node.parent] + 1;
        if (node.what == DiskMapNode::What::smallerItems || levels[at] > deepestJudged) {
            node.verdict = nodes[node.parent].verdict;
            continue;
        }
        const auto path = unjudged.path(at);
        // The walk follows no links, so that all below lies where its path says.
        node.verdict = judge.verdict(path, real + path.substr(folder.size()));
    }
    return DiskMap(std::move(nodes));
}

}  // namespace tidewell
