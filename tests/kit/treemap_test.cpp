#include "kit/treemap.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace tidewell::test {
namespace {

using Nodes = std::vector<TreemapNode>;

/// A folder of files of these sizes.
Nodes flat(const std::vector<double>& sizes) {
    Nodes nodes = {{.size = 0, .firstChild = 1, .childCount = 0}};
    for (const double size : sizes) {
        nodes.push_back({.size = size});
        nodes.front().size += size;
        ++nodes.front().childCount;
    }
    return nodes;
}

bool overlap(const TreemapCell& one, const TreemapCell& other) {
    constexpr double rounding = 1e-6;
    return one.x + one.width > other.x + rounding && other.x + other.width > one.x + rounding &&
           one.y + one.height > other.y + rounding && other.y + other.height > one.y + rounding;
}

bool holds(const TreemapCell& outer, const TreemapCell& inner) {
    constexpr double rounding = 1e-6;
    return inner.x >= outer.x - rounding && inner.y >= outer.y - rounding &&
           inner.x + inner.width <= outer.x + outer.width + rounding &&
           inner.y + inner.height <= outer.y + outer.height + rounding;
}

TEST(Treemap, GivesEachItsAreaAndNothingTwice) {
    std::mt19937 random(7);
    for (int round = 0; round < 60; ++round) {
        std::vector<double> sizes;
        for (int count = 1 + static_cast<int>(random() % 40); count > 0; --count)
            sizes.push_back(std::pow(10.0, static_cast<double>(random() % 7)));
        const auto nodes = flat(sizes);
        const TreemapFrame frame{.width = static_cast<double>(40 + random() % 2000),
                                 .height = static_cast<double>(30 + random() % 1400),
                                 .smallest = 0};
        const auto cells = treemap(nodes, 0, frame);
        ASSERT_EQ(cells.size(), sizes.size());
        const double perSize = frame.width * frame.height / nodes.front().size;
        for (std::size_t at = 0; at < cells.size(); ++at) {
            const auto& cell = cells[at];
            EXPECT_NEAR(cell.width * cell.height, nodes[cell.node].size * perSize,
                        1e-6 * frame.width * frame.height);
            EXPECT_TRUE(holds({.width = frame.width, .height = frame.height}, cell));
            for (std::size_t other = 0; other < at; ++other)
                EXPECT_FALSE(overlap(cell, cells[other]));
        }
    }
}

/// The figures of the paper.
TEST(Treemap, LaysOutTheExampleOfItsAuthors) {
    const auto cells =
        treemap(flat({6, 6, 4, 3, 2, 2, 1}), 0, {.width = 6, .height = 4, .smallest = 0});
    ASSERT_EQ(cells.size(), 7U);
    const TreemapCell wanted[] = {{.x = 0, .y = 0, .width = 3, .height = 2},
                                  {.x = 0, .y = 2, .width = 3, .height = 2},
                                  {.x = 3, .y = 0, .width = 12.0 / 7, .height = 7.0 / 3},
                                  {.x = 3 + 12.0 / 7, .y = 0, .width = 9.0 / 7, .height = 7.0 / 3}};
    for (std::size_t at = 0; at < std::size(wanted); ++at) {
        EXPECT_NEAR(cells[at].x, wanted[at].x, 1e-9) << at;
        EXPECT_NEAR(cells[at].y, wanted[at].y, 1e-9) << at;
        EXPECT_NEAR(cells[at].width, wanted[at].width, 1e-9) << at;
        EXPECT_NEAR(cells[at].height, wanted[at].height, 1e-9) << at;
    }
}

TEST(Treemap, OpensWhatIsLargeAndKeepsEachInItsFolder) {
    // A chain of folders, each with a file beside the next folder.
    constexpr std::uint32_t levels = 10'000;
    Nodes nodes = {{.size = levels, .firstChild = 1, .childCount = 2}};
    for (std::uint32_t level = 1; level < levels; ++level) {
        nodes.push_back({.size = 1});
        nodes.push_back({.size = 1.0 * (levels - level),
                         .firstChild = 2 * level + 1,
                         .childCount = level + 1 < levels ? 2U : 0U});
    }
    const auto cells = treemap(nodes, 0, {.width = 1200, .height = 800});
    ASSERT_GT(cells.size(), 10U);
    for (std::size_t at = 1; at < cells.size(); ++at)
        for (std::size_t outer = 0; outer < at; ++outer)
            EXPECT_TRUE(!overlap(cells[outer], cells[at]) || cells[outer].isOpen);
    EXPECT_LE(treemap(nodes, 0, {.width = 1200, .height = 800, .mostCells = 7}).size(), 7U);
}

TEST(Treemap, TakesWhatHasNoSize) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(treemap({}, 0, {.width = 10, .height = 10}).empty());
    EXPECT_TRUE(treemap(flat({0, -1, none}), 0, {.width = 10, .height = 10}).empty());
    EXPECT_TRUE(treemap(flat({1, 2}), 0, {.width = 0, .height = 10}).empty());
    EXPECT_EQ(treemap(flat({0, 5, none}), 0, {.width = 10, .height = 10}).size(), 1U);
    EXPECT_EQ(treemap(flat({1e18, 1}), 0, {.width = 1000, .height = 1000}).size(), 1U);
}

}  // namespace
}  // namespace tidewell::test
