#include "kit/percent_text.h"

#include <gtest/gtest.h>

namespace tidewell {
namespace {

TEST(PercentText, IsNotFullBeforeTheEnd) {
    EXPECT_EQ(percentText(0.0), "0%");
    EXPECT_EQ(percentText(0.999), "99%");
    EXPECT_EQ(percentText(1.0), "100%");
    EXPECT_EQ(wholePercent(0.639), 63);
}

}  // namespace
}  // namespace tidewell
