#include "deepscan/big_item_scanner.h"

#include <algorithm>
#include <set>
#include <utility>

#include "cleanup/project_artifacts.h"
#include "deepscan/knowledge/knowledge.h"
#include "deepscan/walk_roots.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/removal.h"

namespace tidewell {

namespace {

std::vector<std::string> namesIn(const std::string& folder) {
    return folderNames(folder).value_or(std::vector<std::string>{});
}

/// Lists folders, and opens an entry that holds one of `inner` in its stead.
class CandidateList {
 public:
    CandidateList(std::set<std::string, std::less<>> roots, std::vector<std::string> inner)
        : roots_(std::move(roots)), inner_(std::move(inner)) {}

    void addEntriesOf(const std::string& folder) {
        for (const auto& name : namesIn(folder)) add(joinPath(folder, name));
    }
    void add(std::string path) {
        if (roots_.contains(path)) return;
        const auto holds = [&path](const std::string& folder) { return isBelow(folder, path); };
        if (std::ranges::any_of(inner_, holds) || std::ranges::any_of(roots_, holds)) {
            addEntriesOf(path);
        } else if (fileExists(path)) {
            paths_.push_back(std::move(path));
        }
    }
    std::vector<std::string> take() { return std::move(paths_); }

 private:
    std::set<std::string, std::less<>> roots_;
    std::vector<std::string> inner_;
    std::vector<std::string> paths_;
};

}  // namespace

BigItem::Kind classifyBigItem(std::string_view path, const Host& host, const KeptEntries& kept) {
    return deepScanKnowledge(host.system).classify(path, host, kept);
}

BigItem::Kind classifyPlace(const std::string& path, const Host& host, const KeptPlaces& kept) {
    const auto real = realLocation(path);
    return classifyPlace(path, real ? kept.namesOf(*real) : std::vector<std::string>(), host, kept);
}

BigItem::Kind classifyPlace(const std::string& path, const std::vector<std::string>& names,
                            const Host& host, const KeptPlaces& kept) {
    const auto kind = classifyBigItem(path, host, kept.entries());
    if (names.empty()) return kind;
    const auto isPersonal = [&](const std::string& name) {
        const auto known = classifyBigItem(name, host, kept.entries());
        return known == BigItem::Kind::personal ||
               (known == BigItem::Kind::rebuildable &&
                !isProvenBuildOutput(name, kept.entries(), host.system));
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

std::vector<std::string> BigItemScanner::homeEntries() const {
    const auto known = deepScanKnowledge(host_.system);
    std::vector<std::string> entries;
    if (known.homeEntries == HomeEntries::passedOver) return entries;
    for (const auto& name : namesIn(host_.home)) {
        auto path = joinPath(host_.home, name);
        if (name.starts_with('.') || fileKind(path) == FileKind::other)
            entries.push_back(std::move(path));
    }
    return entries;
}

/// No path can come twice: no two roots are the same folder, each lists its own entries only, and
/// what holds a root is opened down to it.
std::vector<std::string> BigItemScanner::candidates() const {
    const auto listed = walkRoots(host_);
    CandidateList candidates({listed.begin(), listed.end()}, walkExclusions(host_));
    for (const auto& root : listed) candidates.addEntriesOf(root);
    for (auto& entry : homeEntries()) candidates.add(std::move(entry));
    return candidates.take();
}

BigItem BigItemScanner::describe(const std::string& path, const FreedUsage& usage,
                                 const KeptPlaces& kept) const {
    const auto name = lastPathComponent(path);
    const auto fact = FolderKnowledge::fact(path, host_);
    BigItem item{.id = path,
                 .name = std::string(name),
                 .location = std::string(host_.relativeToHome(parentPath(path))),
                 .sizeBytes = usage.freedBytes,
                 .sharedBytes = usage.sharedBytes,
                 .isDirectory = fileKind(path) == FileKind::folder,
                 .kind = finalKind(classifyPlace(path, host_, kept), fact),
                 .note = std::nullopt,
                 .reclaimCommand = std::nullopt};
    if (fact) item.note = std::string(fact->note);
    return item;
}

std::vector<BigItem> BigItemScanner::scan(const Progress& progress, MeasuredFolders* known,
                                          UnreadThings* unread) const {
    const KeptPlaces kept(host_);
    const auto paths = candidates();
    std::vector<BigItem> items;
    std::size_t done = 0;
    for (const auto& path : paths) {
        const auto measured = known ? diskUsage(path, *known) : diskUsage(path);
        if (unread) unread->add(measured.unread);
        const auto usage = freedUsage(path, measured, host_.system);
        ++done;
        if (progress) progress(static_cast<double>(done) / static_cast<double>(paths.size()));
        if (isBigItem(usage.freedBytes)) items.push_back(describe(path, usage, kept));
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
