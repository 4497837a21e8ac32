#include "platform/linux/process_status.h"

#include <gtest/gtest.h>

#include <string>

namespace tidewell::linux_system {
namespace {

TEST(ProcessStatus, ReadsStatusLinesWhateverAProgramIsCalled) {
    const std::string fields = " 1 7 7 0 -1 4194304 95 0 0 0 0 0 0 0 20 0 1 0 316927 2703360 0";
    for (const auto* name : {"sleep", "a b", "x) Z 1 (y", "(((", ")\n)"}) {
        const auto status = parseProcessStatus("7 (" + std::string(name) + ") S" + fields + "\n");
        ASSERT_TRUE(status) << name;
        EXPECT_EQ(status->state, 'S');
        EXPECT_EQ(status->startTime, 316927U);
    }
    for (const auto* line : {"", "7", "7 (sleep)", "7 (sleep) S 1 7 7 0 -1",
                             "7 (sleep) S 1 7 7 0 -1 4194304 95 0 0 0 0 0 0 0 20 0 1 0 x 2"})
        EXPECT_FALSE(parseProcessStatus(line)) << line;
}

TEST(ProcessStatus, ReadsByteCountsFromTheirOwnLinesOnly) {
    constexpr std::string_view text =
        "Pss_Anon:  1 kB\nPss:   20 kB\nSwapPss:\t3 kB\nBad: kB\nHuge: 4 MB";
    EXPECT_EQ(labelledByteCount(text, "Pss:"), 20 * 1024);
    EXPECT_EQ(labelledByteCount("MemTotal: 4294967295 kB", "MemTotal:"), 4'294'967'295LL * 1024);
    for (const auto* label : {"SwapPss:", "Bad:", "Huge:", "Missing:"})
        EXPECT_EQ(labelledByteCount(text, label), std::nullopt) << label;
}

}  // namespace
}  // namespace tidewell::linux_system
