#include "devmode/screens/dev_mode_content.h"

#include <algorithm>
#include <array>
#include <map>

#include "kit/byte_text.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

struct GroupRow {
    std::string_view label;
    std::string_view symbol;
};

/// The rail's order.
constexpr auto groups = std::to_array<GroupRow>({
    {"Xcode", "hammer.fill"},
    {"Node & JS", "shippingbox.fill"},
    {"Python", "chevron.left.forwardslash.chevron.right"},
    {"Java & Android", "cup.and.saucer.fill"},
    {"Rust", "gearshape.fill"},
    {"Go", "arrow.triangle.2.circlepath"},
    {"Flutter & Dart", "bird.fill"},
    {"PHP", "p.square.fill"},
    {"CocoaPods", "shippingbox.fill"},
    {"Homebrew", "mug.fill"},
    {"Unity", "gamecontroller.fill"},
    {"Infra", "cloud.fill"},
    {"Build output", "cube.transparent"},
    {"Editors & AI apps", "curlybraces"},
    {"CLI caches", "terminal"},
    {"Other", "folder.fill"},
    {"AI caches", "brain.head.profile"},
});

constexpr std::string_view artifactPrefix = "artifact:";

struct ArtifactRule {
    std::string_view folderName;
    std::string_view group;
};

/// Groups of artifacts by the folder's name; every other name is build output.
constexpr auto artifactRules = std::to_array<ArtifactRule>({
    {"node_modules", "Node & JS"},
    {".next", "Node & JS"},
    {".nuxt", "Node & JS"},
    {".turbo", "Node & JS"},
    {".angular", "Node & JS"},
    {".parcel-cache", "Node & JS"},
    {"DerivedData", "Xcode"},
    {".build", "Xcode"},
    {".venv", "Python"},
    {"venv", "Python"},
    {"__pycache__", "Python"},
    {".mypy_cache", "Python"},
    {".pytest_cache", "Python"},
    {".tox", "Python"},
    {"Pods", "CocoaPods"},
    {".gradle", "Java & Android"},
    {".dart_tool", "Flutter & Dart"},
    {"target", "Rust"},
    {".terraform", "Infra"},
});

enum class LookedFor { inIdOrTitle, inIdOnly };

struct KeywordRule {
    std::string_view group;
    std::array<std::string_view, 7> keywords;  ///< the rest is empty
    LookedFor place = LookedFor::inIdOrTitle;
};

/// Tried in this order; the first that hits decides.
constexpr auto keywordRules = std::to_array<KeywordRule>({
    {"Xcode", {"xcode", "coresimulator", "swiftpm", "device support", "simulator", "spm"}},
    {"Node & JS", {"npm", "yarn", "pnpm", "bun", "deno", "node-gyp", "playwright"}},
    {"Python", {"pip", "conda", "uv-cache"}},
    {"Java & Android", {"gradle", "maven", "android"}},
    {"Rust", {"cargo", "rust"}},
    {"Go", {"go-build"}, LookedFor::inIdOnly},
    {"Flutter & Dart", {"pub", "dart", "flutter"}},
    {"PHP", {"composer", "php"}},
    {"CocoaPods", {"cocoapods", "pods"}},
    {"Homebrew", {"homebrew", "brew"}},
    {"Unity", {"unity"}},
    {"Editors & AI apps", {"editor", "claude", "cursor", "windsurf", "code cache"}},
});

std::string_view artifactGroup(std::string_view id) {
    const auto rest = id.substr(artifactPrefix.size());
    const auto name = rest.substr(0, rest.find(':'));
    const auto rule = std::ranges::find(artifactRules, name, &ArtifactRule::folderName);
    return rule == artifactRules.end() ? "Build output" : rule->group;
}

bool hits(const KeywordRule& rule, std::string_view id, std::string_view title) {
    return std::ranges::any_of(rule.keywords, [&](std::string_view keyword) {
        if (keyword.empty()) return false;
        const bool isInTitle =
            rule.place == LookedFor::inIdOrTitle && title.find(keyword) != std::string_view::npos;
        return isInTitle || id.find(keyword) != std::string_view::npos;
    });
}

std::string railLine(std::size_t count, ByteCount bytes) {
    return std::to_string(count) + " · " + byteText(bytes);
}

RailGroup itemGroup(const GroupRow& row, CleanupItems items) {
    sortBySize(items);
    const auto bytes = totalBytes(items);
    const auto count = items.size();
    return {.id = std::string(row.label),
            .label = std::string(row.label),
            .symbol = std::string(row.symbol),
            .items = std::move(items),
            .isModels = false,
            .line = railLine(count, bytes),
            .bytes = bytes,
            .count = count};
}

RailGroup modelsGroup(const std::vector<AIModelStore>& models) {
    const auto bytes = totalBytes(models);
    return {.id = std::string(modelsGroupID),
            .label = "Large AI models",
            .symbol = "cube.box.fill",
            .items = {},
            .isModels = true,
            .line = railLine(models.size(), bytes),
            .bytes = bytes,
            .count = models.size()};
}

}  // namespace

std::string_view devGroupOf(const CleanupTarget& target) {
    if (target.category == CleanupCategory::aiCaches) return "AI caches";
    if (target.id.starts_with(artifactPrefix)) return artifactGroup(target.id);
    if (!target.devGroup.empty()) return target.devGroup;
    const auto title = lowerCased(target.title);
    for (const auto& rule : keywordRules)
        if (hits(rule, target.id, title)) return rule.group;
    return target.id == "cli-tool-caches" ? "CLI caches" : "Other";
}

std::vector<RailGroup> devRail(const CleanupItems& items, const std::vector<AIModelStore>& models) {
    std::map<std::string_view, CleanupItems> byGroup;
    for (const auto& item : items) byGroup[devGroupOf(item.target)].push_back(item);
    std::vector<RailGroup> rail;
    for (const auto& row : groups) {
        const auto found = byGroup.find(row.label);
        if (found != byGroup.end()) rail.push_back(itemGroup(row, std::move(found->second)));
    }
    if (!models.empty()) rail.push_back(modelsGroup(models));
    return rail;
}

std::optional<std::size_t> devGroupInView(const std::vector<RailGroup>& rail,
                                          const std::optional<std::string>& viewing) {
    if (rail.empty()) return std::nullopt;
    if (!viewing) return 0;
    const auto wanted = std::ranges::find(rail, *viewing, &RailGroup::id);
    return wanted == rail.end() ? 0 : static_cast<std::size_t>(wanted - rail.begin());
}

DevReviewContent devReviewContent(const DevModeViewModel& model) {
    const auto selected = model.selectedItems();
    return {.headline = "Found " + byteText(model.itemsBytes()) + " to clear.",
            .pickedLine = std::to_string(selected.size()) + " picked",
            .selectedSize = byteText(totalBytes(selected)),
            .canClean = !selected.empty(),
            .leftOutNote = leftOutNote(model.leftOut(), model.servedSystem())};
}

std::string devDoneTitle(const DevModeViewModel& model) {
    return "Freed " + byteText(model.freedBytes());
}

}  // namespace tidewell
