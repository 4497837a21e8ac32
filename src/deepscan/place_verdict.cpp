#include "deepscan/place_verdict.h"

#include <algorithm>
#include <unordered_map>

#include "cleanup/disk_scanner.h"
#include "cleanup/kept_places.h"
#include "cleanup/project_artifacts.h"
#include "cleanup/target_catalogue.h"
#include "deepscan/big_item_scanner.h"
#include "deepscan/knowledge/knowledge.h"
#include "devmode/knowledge/knowledge.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

using Verdict = FolderKnowledge::Verdict;

/// The rows of Clean and Dev Mode but for those of projects.
std::vector<CleanupTarget> allRows(const Host& host) {
    auto rows = cleanupCatalogue(host);
    for (const auto& row : catalogueOf(host.system).modelCaches)
        rows.push_back(targetOf(row, host));
    return rows;
}

MapVerdict verdictOf(BigItem::Kind kind) {
    switch (kind) {
        case BigItem::Kind::cache:
        case BigItem::Kind::rebuildable:
            return MapVerdict::rebuildable;
        case BigItem::Kind::container:
        case BigItem::Kind::appData:
            return MapVerdict::appData;
        case BigItem::Kind::personal:
            return MapVerdict::personal;
        case BigItem::Kind::installer:
        case BigItem::Kind::other:
            return MapVerdict::other;
    }
    return MapVerdict::other;
}

PlaceVerdict byRow(const CleanupTarget& row, RowTool tool, BigItem::Kind kind) {
    return {.verdict = row.safety == SafetyLevel::safe ? MapVerdict::ticked : MapVerdict::review,
            .sentence = row.detail,
            .row = row.title,
            .tool = tool,
            .kind = kind};
}

/// What must stay is no thing that is made again, whatever its name.
PlaceVerdict byRule(DeletionRule rule, BigItem::Kind kind) {
    const auto verdict = verdictOf(kind);
    const std::string sentence(reason(rule));
    switch (rule) {
        case DeletionRule::personalFolder:
            return {.verdict = MapVerdict::personal, .sentence = sentence};
        case DeletionRule::protectedPath:
        case DeletionRule::neverSwept:
            return {.verdict = verdict == MapVerdict::personal ? verdict : MapVerdict::appData,
                    .sentence = sentence};
        case DeletionRule::buildFolder:
            return {.verdict = verdict, .sentence = sentence};
        case DeletionRule::outsideHome:
            return {};
        case DeletionRule::namedCache:
        case DeletionRule::deletableRoot:
        case DeletionRule::openFolder:
            return {.verdict = verdict};
    }
    return {};
}

using Facts = std::unordered_map<std::string, FolderKnowledge::Fact>;

/// What is known of tools' virtual disks and models where they lie on this machine: what to do with
/// them is the tool's own business.
Facts factsOfTools(const Host& host) {
    Facts facts;
    const auto add = [&](const ConstantTexts& detect, const ConstantTexts& places, auto note) {
        const auto isThere = [&](std::string_view place) { return fileExists(host.locate(place)); };
        if (std::ranges::none_of(detect, isThere)) return;
        for (const auto place : places)
            facts.emplace(host.locate(place), FolderKnowledge::Fact{Verdict::mixed, note});
    };
    for (const auto& engine : deepScanKnowledge(host.system).engines)
        add(engine.detect, engine.measure, engine.note);
    for (const auto& store : devKnowledge(host.system).modelStores)
        add(store.detect, store.measure, store.note);
    return facts;
}

}  // namespace

std::string_view reason(DeletionRule rule) {
    switch (rule) {
        case DeletionRule::protectedPath:
            return "Keys and credentials are never removed.";
        case DeletionRule::namedCache:
            return "A cache inside a program's protected profile.";
        case DeletionRule::neverSwept:
            return "It looks like a cache, but holds what nothing can make anew.";
        case DeletionRule::deletableRoot:
            return "Scratch space that the system clears anyway.";
        case DeletionRule::outsideHome:
            return "It lies outside your home folder.";
        case DeletionRule::openFolder:
            return "It lies outside your own files.";
        case DeletionRule::buildFolder:
            return "Build output of a project.";
        case DeletionRule::personalFolder:
            return "These are your own files.";
    }
    return {};
}

/// What the rows would work on now, and by which of their paths they claim what is not there.
struct PlaceJudge::Rows {
    explicit Rows(const Host& host)
        : system{host.system}, targets(allRows(host)), toolFacts(factsOfTools(host)) {
        const DiskScanner scanner(host);
        for (std::size_t row = 0; row < targets.size(); ++row) {
            claims.emplace_back();
            for (const auto& stored : targets[row].paths) claims.back().emplace_back(stored, host);
            for (auto& place : scanner.placesOf(targets[row])) places.emplace(place, row);
            if (targets[row].isSweep())
                for (auto& folder : existingPlaces(targets[row].paths, host))
                    sweptFolders.emplace(folder, row);
        }
    }

    const CleanupTarget* takerOf(std::string_view path) const {
        if (const auto at = sweptFolders.find(std::string(path)); at != sweptFolders.end())
            return &targets[at->second];
        for (; path.size() > 1; path = parentPath(path))
            if (const auto at = places.find(std::string(path)); at != places.end())
                return &targets[at->second];
        return nullptr;
    }

    /// Those that load models come last.
    RowTool toolOf(const CleanupTarget& row) const {
        const auto rowsOfClean = targets.size() - catalogueOf(system).modelCaches.size();
        return &row < targets.data() + rowsOfClean ? RowTool::clean : RowTool::devMode;
    }

    System system;
    std::vector<CleanupTarget> targets;
    std::vector<std::vector<TablePath>> claims;  ///< of each target
    std::unordered_map<std::string, std::size_t> places;
    std::unordered_map<std::string, std::size_t> sweptFolders;  ///< not all in them is taken
    Facts toolFacts;
};

PlaceJudge::PlaceJudge(const Host& host)
    : host_(host),
      rows_(std::make_unique<Rows>(host)),
      guard_(host),
      kept_(std::make_unique<KeptPlaces>(guard_.keptPlaces())) {}

PlaceJudge::~PlaceJudge() = default;

PlaceKnowledge PlaceJudge::know(const std::string& path) {
    auto known = judged(path, realLocation(path));
    for (std::size_t row = 0; row < rows_->targets.size(); ++row)
        if (covers(rows_->claims[row], path)) known.claimedBy.push_back(rows_->targets[row].id);
    return known;
}

PlaceVerdict PlaceJudge::verdict(const std::string& path, const std::string& real) {
    return judged(path, real).verdict;
}

PlaceKnowledge PlaceJudge::judged(const std::string& path, const std::optional<std::string>& real) {
    const auto fact = FolderKnowledge::fact(path, host_);
    const auto names = real ? kept_->namesOf(*real, folderNames_) : std::vector<std::string>();
    PlaceKnowledge known{.kind = finalKind(classifyPlace(path, names, host_, *kept_), fact),
                         .fact = fact,
                         .claimedBy = {},
                         .rule = guard_.verdict(path, names, *kept_),
                         .verdict = {}};
    known.verdict = judge(path, known);
    return known;
}

PlaceVerdict PlaceJudge::judge(const std::string& path, const PlaceKnowledge& known) {
    const auto nearest = nearestFact(path);
    auto kind = known.kind;
    if (nearest)
        kind = nearest->isOfTool ? BigItem::Kind::container : finalKind(kind, nearest->fact);
    if (allows(known.rule)) {
        if (const auto* row = rows_->takerOf(path)) return byRow(*row, rows_->toolOf(*row), kind);
        if (const auto artifact = artifactHolding(path, host_, kept_->entries()))
            return byRow(*artifact, RowTool::clean, kind);
    }
    auto verdict = byRule(known.rule, kind);
    verdict.kind = kind;
    if (nearest) verdict.sentence = nearest->fact.note;
    return verdict;
}

std::optional<PlaceJudge::Nearest> PlaceJudge::nearestFact(std::string_view path) {
    if (!isBelow(path, host_.home)) return std::nullopt;
    if (auto fact = factAbout(path)) return fact;
    const auto folder = parentPath(path);
    const auto known = nearest_.find(folder);
    if (known != nearest_.end()) return known->second;
    return nearest_[std::string(folder)] = nearestFact(folder);
}

std::optional<PlaceJudge::Nearest> PlaceJudge::factAbout(std::string_view path) const {
    if (const auto at = rows_->toolFacts.find(std::string(path)); at != rows_->toolFacts.end())
        return Nearest{at->second, true};
    if (const auto fact = FolderKnowledge::fact(path, host_)) return Nearest{*fact, false};
    return std::nullopt;
}

}  // namespace tidewell
