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

std::vector<std::string_view> idsWhere(auto predicate) {
    std::vector<std::string_view> ids;
    for (const auto& row : catalogueRows())
        if (predicate(row)) ids.push_back(row.id);
    return ids;
}

}  // namespace

TEST(TargetCatalogue, NamesWhatIsNeverTickedAndWhatIsSwept) {
    EXPECT_EQ(idsWhere([](const auto& row) { return row.safety == SafetyLevel::caution; }),
              (std::vector<std::string_view>{"xcode-archives", "claude-vm-bundles", "ios-backups",
                                             "macos-on-demand-assets", "user-temp", "trash"}));
    EXPECT_EQ(idsWhere([](const auto& row) { return row.kind == TargetKind::sweep; }),
              (std::vector<std::string_view>{"cli-tool-caches", "other-app-caches"}));
    EXPECT_EQ(idsWhere([](const auto& row) { return row.paths.size() == 0; }),
              std::vector<std::string_view>{"user-temp"});
}

TEST(TargetCatalogue, KeepsItsCategoriesInUnbrokenRuns) {
    const auto rows = catalogueRows();
    const auto runOf = [&rows](CleanupCategory category) {
        const auto first = std::ranges::find(rows, category, &CatalogueRow::category);
        const auto last = std::find_if(
            first, rows.end(), [category](const auto& row) { return row.category != category; });
        return std::pair(first - rows.begin() + 1, last - rows.begin());
    };
    EXPECT_EQ(runOf(CleanupCategory::developerCaches), std::pair(1L, 26L));
    EXPECT_EQ(runOf(CleanupCategory::appCaches), std::pair(27L, 57L));
    EXPECT_EQ(runOf(CleanupCategory::system), std::pair(58L, 65L));
}

TEST(TargetCatalogue, TellsInEveryRowWhatItIsAndWhereItLies) {
    std::set<std::string_view> titles;
    for (const auto& row : catalogueRows()) {
        EXPECT_TRUE(titles.insert(row.title).second) << row.title;
        EXPECT_TRUE(row.detail.ends_with('.')) << row.id;
        for (const auto path : row.paths) {
            EXPECT_TRUE(path.starts_with("~/")) << path;
            EXPECT_EQ(path, standardizedPath(path));
            EXPECT_EQ(path.find_first_of("*?["), std::string_view::npos) << path;
        }
    }
}

TEST(TargetCatalogue, TakesTheScratchFoldersFromTheRunningMachine) {
    const SampleMachine machine;
    const auto targets = cleanupCatalogue(machine.host());
    EXPECT_EQ(targets[63].id, "user-temp");
    EXPECT_EQ(targets[63].paths, (std::vector{machine.path("/var/folders/zz/ada/T"),
                                              machine.path("/var/folders/zz/ada/C")}));
}

/// A row that could reach a key would be caught by the guard alone; no row may even try. The tokens
/// below ~/.cache are kept out of its sweep by name.
TEST(TargetCatalogue, NeverComesNearKeysAndCredentials) {
    const SampleMachine machine;
    const auto shielded = [&machine](const CleanupTarget& target, std::string_view key) {
        return target.isSweep() && isBelow(key, machine.path("~/.cache/huggingface"));
    };
    for (const auto& target : cleanupCatalogue(machine.host()))
        for (const auto& stored : target.paths)
            for (const auto& key : keptEntries(machine.host()).keys) {
                const auto path = machine.host().expand(stored);
                const bool meets = isAtOrBelow(key, path) || isAtOrBelow(path, key);
                EXPECT_TRUE(!meets || shielded(target, key)) << target.id << " and " << key;
            }
}

}  // namespace tidewell
