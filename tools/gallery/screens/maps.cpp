#include "screens/maps.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <utility>

namespace tidewell::gallery {

namespace {

using What = DiskMapNode::What;

constexpr ByteCount megabyte = 1'000'000;

/// A part before it is laid down level by level.
struct Part {
    std::string name;
    double megabytes = 0;  ///< of a folder what it has beyond its parts
    PlaceVerdict verdict = {};
    std::vector<Part> parts = {};
    bool isUnread = false;

    ByteCount bytes() const {
        auto sum = static_cast<ByteCount>(megabytes * static_cast<double>(megabyte));
        for (const auto& part : parts) sum += part.bytes();
        return sum;
    }
};

DiskMapNode nodeOf(const Part& part, std::uint32_t parent) {
    return {.name = part.name,
            .what = part.parts.empty() ? What::file : What::folder,
            .bytes = part.bytes(),
            .isUnread = part.isUnread,
            .parent = parent,
            .verdict = part.verdict};
}

DiskMap mapOf(const Part& top) {
    std::vector<DiskMapNode> nodes = {nodeOf(top, 0)};
    std::vector<const Part*> parts = {&top};
    for (std::uint32_t at = 0; at < parts.size(); ++at) {
        auto children = std::vector<const Part*>();
        for (const auto& child : parts[at]->parts) children.push_back(&child);
        std::ranges::stable_sort(children, std::ranges::greater{}, &Part::bytes);
        nodes[at].firstChild = static_cast<std::uint32_t>(nodes.size());
        for (const auto* child : children) nodes.push_back(nodeOf(*child, at));
        parts.insert(parts.end(), children.begin(), children.end());
        const auto rest =
            static_cast<ByteCount>(parts[at]->megabytes * static_cast<double>(megabyte));
        if (!children.empty() && rest > 0) {
            nodes.push_back({.name = {},
                             .what = What::smallerItems,
                             .bytes = rest,
                             .count = 240,
                             .parent = at,
                             .verdict = nodes[at].verdict});
            parts.push_back(nullptr);
        }
        nodes[at].childCount = static_cast<std::uint32_t>(nodes.size()) - nodes[at].firstChild;
        while (at + 1 < parts.size() && !parts[at + 1]) ++at;
    }
    nodes.front().what = What::folder;
    return DiskMap(std::move(nodes));
}

PlaceVerdict row(MapVerdict verdict, std::string title, std::string sentence) {
    return {.verdict = verdict,
            .sentence = std::move(sentence),
            .row = std::move(title),
            .tool = RowTool::clean,
            .kind = BigItem::Kind::cache};
}

const PlaceVerdict own = {.verdict = MapVerdict::personal,
                          .sentence = "These are your own files.",
                          .kind = BigItem::Kind::personal};
const PlaceVerdict app = {.verdict = MapVerdict::appData, .kind = BigItem::Kind::appData};
const PlaceVerdict again = {.verdict = MapVerdict::rebuildable,
                            .sentence = "Build output. Re-created by the next build.",
                            .kind = BigItem::Kind::rebuildable};
const PlaceVerdict open = {};

std::vector<Part> many(const std::string& name, int count, double largest, PlaceVerdict verdict) {
    std::vector<Part> parts;
    for (int part = 1; part <= count; ++part)
        parts.push_back({name + " " + std::to_string(part), largest / std::sqrt(part), verdict});
    return parts;
}

}  // namespace

DiskMap busyHome(System system) {
    const bool isLinux = system == System::linux;
    const auto npm = row(MapVerdict::ticked, "npm cache",
                         "Packages, one-off run programs and logs that npm has kept. Fetched again "
                         "when needed; your settings and global packages stay.");
    const auto browser = row(MapVerdict::ticked, "Browser cache", "Refills as you browse.");
    const auto gradle = row(MapVerdict::review, "Gradle caches",
                            "Downloaded again by the next build, which can take hours.");
    const auto trash =
        row(MapVerdict::review, "Trash", "What you threw away. It is gone for good.");
    const auto modules = row(MapVerdict::ticked, "node_modules · webshop",
                             "Dependencies. Installed again by the next install.");
    return mapOf(
        {"/home/ada",
         210,
         open,
         {{isLinux ? "Videos" : "Movies",
           90,
           own,
           {{"Holiday 2019", 40, own, many("clip", 26, 1900, own)},
            {"harbour.mkv", 4380, own},
            {"Screencasts", 12, own, many("screencast", 9, 420, own)}}},
          {"Pictures",
           130,
           own,
           {{"2026", 60, own, many("raw", 60, 190, own)},
            {"2025", 60, own, many("raw", 44, 160, own)},
            {"2024", 60, own, many("raw", 30, 130, own)}}},
          {isLinux ? ".cache" : "Library",
           120,
           open,
           {{"com.example.Browser", 22, browser, many("part", 18, 380, browser)},
            {"pip", 14, npm, many("wheel", 11, 170, npm)},
            {"thumbnails", 310, browser},
            {"some-tool", 260,
             row(MapVerdict::review, "Other caches", "Look before you clear it.")}}},
          {".npm", 8, npm, {{"_cacache", 60, npm, many("content", 20, 900, npm)}}},
          {"Code",
           70,
           open,
           {{"engine",
             45,
             open,
             {{"target", 40, again, many("deps", 22, 520, again)},
              {".git", 610, open},
              {"assets", 30, open, many("model", 8, 240, open)}}},
            {"webshop",
             20,
             open,
             {{"node_modules", 380, modules, many("package", 24, 90, modules)},
              {"src", 48, open}}}}},
          {".gradle", 10, gradle, {{"caches", 80, gradle, many("modules", 12, 640, gradle)}}},
          {isLinux ? ".local" : "Containers",
           60,
           app,
           {{"Steam", 90, app, many("game", 6, 3900, app)},
            {"Mail Courier", 390, app},
            {"Trash", 40, trash, many("old film", 4, 1300, trash)}}},
          {"Downloads",
           55,
           own,
           {{isLinux ? "studio_4.2_amd64.deb" : "Install Studio.dmg", 6240, own},
            {"a file with a name that is very much longer than its cell is wide.iso", 2200, own},
            {"archive.zip", 800, own}}},
          {"Documents",
           180,
           own,
           {{"Thesis", 30, own, many("chapter", 12, 60, own)},
            {"Scans", 20, own, many("scan", 30, 44, own)}}}}});
}

DiskMap emptyHome() {
    return mapOf({"/home/ada", 0, open, {}});
}

DiskMap homeOfOneFile() {
    return mapOf({"/home/ada", 0, open, {{"disk-image.img", 214'000, own}}});
}

DiskMap crowdedHome() {
    std::mt19937 random(3);
    const PlaceVerdict verdicts[] = {own,
                                     app,
                                     again,
                                     open,
                                     row(MapVerdict::ticked, "Caches", "Made again."),
                                     row(MapVerdict::review, "Other caches", "Look first.")};
    Part home{"/home/ada", 10, open, {}};
    for (int folder = 0; folder < 140; ++folder) {
        const auto& verdict = verdicts[random() % 6];
        home.parts.push_back({"folder " + std::to_string(folder), 1, verdict,
                              many("file", 140, static_cast<double>(1 + random() % 40), verdict)});
    }
    return mapOf(home);
}

DiskMap deepHome() {
    Part inner{"the end", 300, own, {}};
    for (int level = 400; level > 0; --level)
        inner = {"level " + std::to_string(level),
                 0,
                 own,
                 {std::move(inner), {"beside it", 40, level % 2 ? app : again}}};
    return mapOf({"/home/ada", 5, open, {std::move(inner)}});
}

DiskMap homeThatCannotBeRead() {
    Part closed{"of somebody else", 3, app, {{"what was read", 300, app}}, true};
    return mapOf({"/home/ada", 40, open, {closed, {"Documents", 900, own}}, true});
}

}  // namespace tidewell::gallery
