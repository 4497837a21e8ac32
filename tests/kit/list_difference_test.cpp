#include "kit/list_difference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tidewell {
namespace {

using Keys = std::vector<std::string>;

/// A row of the shown list, which knows whether it was there from the beginning.
struct Row {
    std::string key;
    bool isOld;
};

std::vector<Row> rowsAfter(const Keys& before, const Keys& after) {
    std::vector<Row> rows;
    for (const auto& key : before) rows.push_back({key, true});
    for (const auto& step : listDifference(before, after)) {
        const auto at = [&](std::size_t index) {
            return rows.begin() + static_cast<std::ptrdiff_t>(index);
        };
        switch (step.kind) {
            case ListStep::Kind::remove:
                rows.erase(at(step.from));
                break;
            case ListStep::Kind::insert:
                rows.insert(at(step.to), {after[step.to], false});
                break;
            case ListStep::Kind::move:
                EXPECT_GT(step.from, step.to);
                const auto row = rows.at(step.from);
                rows.erase(at(step.from));
                rows.insert(at(step.to), row);
                break;
        }
    }
    return rows;
}

void expectLeadsTo(const Keys& before, const Keys& after) {
    const auto rows = rowsAfter(before, after);
    Keys keys;
    for (const auto& row : rows) keys.push_back(row.key);
    EXPECT_EQ(keys, after);
    for (const auto& key : after) {
        const auto kept = std::ranges::count_if(
            rows, [&](const Row& row) { return row.key == key && row.isOld; });
        EXPECT_EQ(kept, std::min(std::ranges::count(before, key), std::ranges::count(after, key)))
            << key << ": a row that stays is never made anew";
    }
}

TEST(ListDifference, LeadsFromAnyListToAnyOtherAndKeepsWhatStays) {
    expectLeadsTo({}, {});
    expectLeadsTo({}, {"a", "b"});
    expectLeadsTo({"a", "b"}, {});
    expectLeadsTo({"a", "b", "c", "d"}, {"d", "x", "b", "a"});
    expectLeadsTo({"a", "a", "b", "a"}, {"b", "a", "a", "c", "c"});
    std::mt19937 random(7);
    const auto anyList = [&] {
        Keys keys(random() % 9);
        for (auto& key : keys) key = std::string(1, static_cast<char>('a' + random() % 6));
        return keys;
    };
    for (int round = 0; round < 500; ++round) expectLeadsTo(anyList(), anyList());
}

TEST(ListDifference, SaysNothingOfWhatIsTheSame) {
    EXPECT_TRUE(listDifference({"a", "b", "b"}, {"a", "b", "b"}).empty());
    const std::vector expected = {
        ListStep{.kind = ListStep::Kind::move, .from = 2, .to = 0},
    };
    EXPECT_EQ(listDifference({"a", "b", "c"}, {"c", "a", "b"}), expected);
}

}  // namespace
}  // namespace tidewell
