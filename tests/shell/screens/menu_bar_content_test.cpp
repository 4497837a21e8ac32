#include "shell/screens/menu_bar_content.h"

#include <gtest/gtest.h>

namespace tidewell {
namespace {

TEST(MenuBarContent, TellsWhatIsFreeAndHowWellThatIs) {
    const auto content = menuBarContent({.free = 124'500'000'000, .total = 500'000'000'000});
    EXPECT_EQ(content.usedPercent, "75%");
    EXPECT_DOUBLE_EQ(content.usedFraction, 0.751);
    EXPECT_EQ(content.freeBytes, 124'500'000'000);
    EXPECT_EQ(content.freeOf, "free of 500 GB");
    EXPECT_EQ(content.health.label, "Filling up");
}

TEST(MenuBarContent, ADiskThatCannotBeReadIsFullAndOneWithoutSizeHealthy) {
    const auto unread = menuBarContent({});
    EXPECT_EQ(unread.usedFraction, 1.0);
    EXPECT_EQ(unread.usedPercent, "100%");
    EXPECT_EQ(unread.health.label, "Critical");
    const auto sizeless = menuBarContent({.free = 5, .total = 0});
    EXPECT_EQ(sizeless.usedFraction, 0.0);
    EXPECT_EQ(sizeless.health.label, "Healthy");
}

TEST(MenuBarContent, WhatWasReclaimedIsToldFromTheFirstByteOn) {
    EXPECT_EQ(menuBarContent({.totalFreed = 0}).reclaimed, std::nullopt);
    EXPECT_EQ(menuBarContent({.totalFreed = 1}).reclaimed, "1 byte reclaimed");
    EXPECT_EQ(menuBarContent({.totalFreed = 23'480'000'000}).reclaimed, "23.48 GB reclaimed");
}

}  // namespace
}  // namespace tidewell
