#include "deepscan/big_item_scanner.h"

#include <algorithm>
#include <array>
#include <utility>

#include "cleanup/cleanup_model.h"
#include "cleanup/project_artifacts.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/removal.h"

namespace tidewell {

namespace {

constexpr std::array<std::string_view, 5> libraryRoots = {
    "Library/Caches",           "Library/Application Support", "Library/Containers",
    "Library/Group Containers", "Library/Developer",
};

/// Folders of the home folder that are no roots: parts of the one are, and the other has a tool of
/// its own.
constexpr std::array<std::string_view, 2> homeRootExclusions = {"Library", "Applications"};

bool isHomeRootName(std::string_view name) {
    return !name.starts_with('.') &&
           std::ranges::find(homeRootExclusions, name) == homeRootExclusions.end();
}

std::vector<std::string> namesIn(const std::string& folder) {
    return folderNames(folder).value_or(std::vector<std::string>{});
}

}  // namespace

BigItem::Kind classifyBigItem(std::string_view path, std::string_view home,
                              const KeptEntries& kept) {
    const auto name = lastPathComponent(path);
    if (isArtifactFolderName(name) || isBuildFolderName(name)) return BigItem::Kind::rebuildable;
    // Without a slash behind it, so that "Caches 2" beside it counts as well.
    if (path.starts_with(joinPath(home, "Library/Caches")) || name == "Cache" || name == "Caches")
        return BigItem::Kind::cache;
    if (isBelow(path, joinPath(home, "Library"))) return BigItem::Kind::appData;
    if (personalFolderOf(path, kept)) return BigItem::Kind::personal;
    return BigItem::Kind::other;
}

BigItem::Kind classifyPlace(const std::string& path, std::string_view home,
                            const KeptPlaces& kept) {
    const auto kind = classifyBigItem(path, home, kept.entries());
    const auto real = realLocation(path);
    if (!real) return kind;
    const auto names = kept.namesOf(*real);
    const auto isPersonal = [&](const std::string& name) {
        const auto known = classifyBigItem(name, home, kept.entries());
        return known == BigItem::Kind::personal ||
               (known == BigItem::Kind::rebuildable && !isProvenBuildOutput(name, kept.entries()));
    };
    const bool staysForTheUser = kept.mustStay(names) || std::ranges::any_of(names, isPersonal);
    return staysForTheUser ? BigItem::Kind::personal : kind;
}

BigItem::Kind finalKind(BigItem::Kind classified,
                        const std::optional<FolderKnowledge::Fact>& fact) {
    if (!fact) return classified;
    switch (fact->verdict) {
        case FolderKnowledge::Verdict::keepUserData:
            return BigItem::Kind::personal;
        case FolderKnowledge::Verdict::safeToClear:
            return BigItem::Kind::cache;
        case FolderKnowledge::Verdict::mixed:
        case FolderKnowledge::Verdict::systemRecreated:
            return classified;
    }
    return classified;
}

BigItemScanner::BigItemScanner(Host host) : host_(std::move(host)), guard_(host_) {}

/// A personal folder that lies deeper is one as well, so that it never goes as one item.
std::vector<std::string> BigItemScanner::roots(const KeptEntries& kept) const {
    std::vector<std::string> roots;
    for (const auto& folder : kept.personalFolders)
        if (isDeepInHome(folder, host_.home) && std::ranges::find(roots, folder) == roots.end() &&
            fileKind(folder) == FileKind::folder)
            roots.push_back(folder);
    for (const auto root : libraryRoots) roots.push_back(joinPath(host_.home, root));
    for (const auto& name : namesIn(host_.home)) {
        auto path = joinPath(host_.home, name);
        if (isHomeRootName(name) && fileKind(path) == FileKind::folder)
            roots.push_back(std::move(path));
    }
    return roots;
}

/// No path can come twice: no two roots are the same folder, each lists its own entries only, and
/// none that is or holds a root.
std::vector<std::string> BigItemScanner::candidates(const KeptEntries& kept) const {
    std::vector<std::string> paths;
    const auto roots = this->roots(kept);
    for (const auto& root : roots) {
        for (const auto& name : namesIn(root)) {
            auto path = joinPath(root, name);
            const bool holdsRoot = std::ranges::any_of(
                roots, [&path](const auto& other) { return isAtOrBelow(other, path); });
            if (!holdsRoot && fileExists(path)) paths.push_back(std::move(path));
        }
    }
    return paths;
}

BigItem BigItemScanner::describe(const std::string& path, ByteCount size,
                                 const KeptPlaces& kept) const {
    const auto name = lastPathComponent(path);
    const auto fact = FolderKnowledge::fact(name);
    BigItem item{.id = path,
                 .name = std::string(name),
                 .location = std::string(host_.relativeToHome(parentPath(path))),
                 .sizeBytes = size,
                 .isDirectory = fileKind(path) == FileKind::folder,
                 .kind = finalKind(classifyPlace(path, host_.home, kept), fact),
                 .note = std::nullopt,
                 .reclaimCommand = std::nullopt};
    if (fact) item.note = std::string(fact->note);
    return item;
}

std::vector<BigItem> BigItemScanner::scan(const Progress& progress, MeasuredFolders* known) const {
    const KeptPlaces kept(host_);
    const auto paths = candidates(kept.entries());
    std::vector<BigItem> items;
    std::size_t measured = 0;
    for (const auto& path : paths) {
        const auto size = (known ? diskUsage(path, *known) : diskUsage(path)).bytes;
        ++measured;
        if (progress) progress(static_cast<double>(measured) / static_cast<double>(paths.size()));
        if (isBigItem(size)) items.push_back(describe(path, size, kept));
    }
    sortBySize(items);
    return items;
}

BigItemScanner::TrashOutcome BigItemScanner::trash(const BigItem& item) const {
    TrashOutcome outcome{.name = item.name, .moved = {}, .reason = {}};
    const auto approved = guard_.approve(item);
    if (!approved) {
        outcome.reason = "It is nothing that may go to the Trash as a whole.";
        return outcome;
    }
    auto trashing = moveToTrash(*approved, host_);
    outcome.success = trashing.moved.has_value();
    if (outcome.success) outcome.freedBytes = item.sizeBytes;
    outcome.moved = std::move(trashing.moved);
    outcome.reason = std::move(trashing.problem);
    return outcome;
}

}  // namespace tidewell
