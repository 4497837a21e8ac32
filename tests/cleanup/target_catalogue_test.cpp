#include "cleanup/target_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "cleanup/disk_scanner.h"
#include "cleanup/kept_entries.h"
#include "platform/path_text.h"
#include "support/sample_machine.h"

namespace tidewell {

namespace {

using test::SampleMachine;

constexpr System systems[] = {System::macOS, System::linux};

std::vector<std::string_view> idsWhere(auto predicate) {
    std::vector<std::string_view> ids;
    for (const auto& row : catalogueOf(System::macOS).rows)
        if (predicate(row)) ids.push_back(row.id);
    return ids;
}

const CatalogueRow* rowNamed(System system, std::string_view id) {
    const auto rows = catalogueOf(system).rows;
    const auto row = std::ranges::find(rows, id, &CatalogueRow::id);
    return row == rows.end() ? nullptr : &*row;
}

/// A place that a stored path stands for.
std::string placeOf(std::string stored) {
    for (auto at = stored.find('*'); at != std::string::npos; at = stored.find('*'))
        stored.replace(at, 1, "Profile 1");
    return stored;
}

}  // namespace

TEST(TargetCatalogue, NamesWhatIsNeverTickedAndWhatIsSwept) {
    EXPECT_EQ(idsWhere([](const auto& row) { return row.safety == SafetyLevel::caution; }),
              (std::vector<std::string_view>{"xcode-archives", "claude-vm-bundles", "ios-backups",
                                             "macos-on-demand-assets", "user-temp", "trash"}));
    EXPECT_EQ(idsWhere([](const auto& row) { return row.kind == TargetKind::sweep; }),
              (std::vector<std::string_view>{"cli-tool-caches", "other-app-caches"}));
}

TEST(TargetCatalogue, TellsInEveryRowWhatItIsAndWhereItLies) {
    for (const auto system : systems) {
        const auto rows = catalogueOf(system).rows;
        EXPECT_TRUE(std::ranges::is_sorted(rows, {}, &CatalogueRow::category));
        std::set<std::string_view> titles;
        for (const auto& row : rows) {
            EXPECT_TRUE(titles.insert(row.title).second) << row.title;
            EXPECT_TRUE(row.detail.ends_with('.')) << row.id;
            EXPECT_EQ(storedPaths(row).empty(), row.source == PathSource::deletableRoots);
            for (const auto& path : storedPaths(row)) {
                EXPECT_TRUE(path.starts_with("~/") || path.starts_with("{")) << path;
                EXPECT_EQ(path, standardizedPath(path));
                for (const auto piece : pathPieces(path))
                    EXPECT_GE(piece.find_first_of("*?["), piece.size() - 1) << path;
            }
        }
    }
}

/// People who know a row from the one system read the same group and risk on the other, but where
/// its folder holds more there.
TEST(TargetCatalogue, SaysTheSameOfARowOnBothSystems) {
    for (const auto& row : catalogueOf(System::linux).rows) {
        const auto* other = rowNamed(System::macOS, row.id);
        if (!other) continue;
        EXPECT_EQ(row.category, other->category) << row.id;
        const std::set<std::string_view> holdMore = {"maven-repo", "other-app-caches",
                                                     "discord-cache"};
        EXPECT_TRUE(holdMore.contains(row.id) || row.safety == other->safety) << row.id;
    }
}

TEST(TargetCatalogue, TakesTheScratchFoldersFromTheRunningMachine) {
    const SampleMachine machine;
    const auto targets = cleanupCatalogue(machine.host());
    EXPECT_EQ(std::ranges::find(targets, "user-temp", &CleanupTarget::id)->paths,
              (std::vector{machine.path("/var/folders/zz/ada/T"),
                           machine.path("/var/folders/zz/ada/C")}));
}

/// A row that could reach a key would be caught by the guard alone; no row may even try. The tokens
/// below ~/.cache are kept out of its sweep by name.
TEST(TargetCatalogue, NeverComesNearKeysAndCredentials) {
    for (const auto system : systems) {
        const SampleMachine machine(system);
        const auto never = neverSweptPaths(machine.host());
        const auto shielded = [&never](const CleanupTarget& target, std::string_view key) {
            return target.isSweep() && covers(never, key);
        };
        for (const auto& target : cleanupCatalogue(machine.host()))
            for (const auto& stored : target.paths)
                for (const auto& key : keptEntries(machine.host()).keys) {
                    const TablePath path(stored, machine.host());
                    const bool meets = path.covers(key) || isAtOrBelow(path.base(), key);
                    EXPECT_TRUE(!meets || shielded(target, key)) << target.id << " and " << key;
                }
    }
}

/// Every place that a row names is found by that row, as one path, and by no other; so nothing is
/// counted or asked for twice.
TEST(TargetCatalogue, FindsEachPlaceOfALinuxMachineOnceAndInItsOwnRow) {
    const SampleMachine machine(System::linux);
    const auto rows = catalogueOf(System::linux).rows;
    for (const auto& row : rows)
        if (!isSweep(row.kind))
            for (const auto& stored : storedPaths(row))
                machine.file(placeOf(stored) + "/some file");
    std::vector<std::string> all;
    for (const auto& target : cleanupCatalogue(machine.host())) {
        const auto item = DiskScanner(machine.host()).measure(target);
        if (target.isSweep() || target.id == "user-temp") {
            EXPECT_FALSE(item) << target.id << " takes " << item->resolvedPaths.front();
            continue;
        }
        ASSERT_TRUE(item) << target.id;
        EXPECT_EQ(item->resolvedPaths.size(), target.paths.size()) << target.id;
        std::ranges::copy(item->resolvedPaths, std::back_inserter(all));
    }
    std::ranges::sort(all);
    for (std::size_t i = 1; i < all.size(); ++i)
        EXPECT_FALSE(isAtOrBelow(all[i], all[i - 1])) << all[i];
}

}  // namespace tidewell
