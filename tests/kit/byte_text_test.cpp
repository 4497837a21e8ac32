#include "kit/byte_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace tidewell {
namespace {

TEST(ByteText, ShowsEachUnitWithItsDigitsAndRoundsHalfToEven) {
    const struct {
        ByteCount bytes;
        const char* text;
    } rows[] = {
        {std::numeric_limits<ByteCount>::min(), "Zero KB"},
        {-1, "Zero KB"},
        {0, "Zero KB"},
        {1, "1 byte"},
        {2, "2 bytes"},
        {999, "999 bytes"},
        {1'000, "1 KB"},
        {1'499, "1 KB"},
        {1'500, "2 KB"},
        {2'500, "2 KB"},
        {2'501, "3 KB"},
        {999'499, "999 KB"},
        {999'500, "1 MB"},
        {999'999, "1 MB"},
        {1'000'000, "1 MB"},
        {1'050'000, "1 MB"},
        {1'050'001, "1.1 MB"},
        {1'150'000, "1.2 MB"},
        {2'500'000, "2.5 MB"},
        {999'949'999, "999.9 MB"},
        {999'950'000, "1 GB"},
        {1'005'000'000, "1 GB"},
        {1'005'000'001, "1.01 GB"},
        {1'015'000'000, "1.02 GB"},
        {1'100'000'000, "1.1 GB"},
        {999'994'999'999, "999.99 GB"},
        {999'995'000'000, "1 TB"},
        {12'345'678'901'234, "12.35 TB"},
        {999'995'000'000'000, "1 PB"},
        {999'994'999'999'999'999, "999.99 PB"},
        {999'995'000'000'000'000, "1 EB"},
        {std::numeric_limits<ByteCount>::max(), "9.22 EB"},
    };
    for (const auto& row : rows) EXPECT_EQ(byteText(row.bytes), row.text) << row.bytes;
}

}  // namespace
}  // namespace tidewell
