#include "platform/collation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

namespace tidewell {
namespace {

TEST(Collation, OrdersNamesAsPeopleExpectWithoutRegardToCase) {
    std::vector<std::string> names{"zebra",   "Äpfel",    "apple",  "Zoo",   "Apfel",
                                   "2 files", "10 files", "éclair", "Eclair"};
    std::ranges::stable_sort(names, [](const auto& left, const auto& right) {
        return compareForPeople(left, right) < 0;
    });
    EXPECT_EQ(names, (std::vector<std::string>{"10 files", "2 files", "Apfel", "Äpfel", "apple",
                                               "Eclair", "éclair", "zebra", "Zoo"}));
    EXPECT_EQ(compareForPeople("XCODE", "xcode"), std::weak_ordering::equivalent);
    EXPECT_EQ(compareForPeople("Cafe", "café"), std::weak_ordering::less);
    EXPECT_EQ(compareForPeople("", "a"), std::weak_ordering::less);
}

TEST(Collation, TakesIllFormedNamesAlsoFromSeveralThreadsAtOnce) {
    const std::string illFormed = "caf\xe9";
    EXPECT_EQ(compareForPeople(illFormed, "caf\xef\xbf\xbd"), std::weak_ordering::equivalent);
    EXPECT_EQ(compareForPeople(illFormed, "caf"), std::weak_ordering::greater);
    std::vector<std::thread> threads;
    for (int count = 0; count < 4; ++count)
        threads.emplace_back([&] {
            for (int turn = 0; turn < 1000; ++turn)
                EXPECT_EQ(compareForPeople(illFormed, "dog"), std::weak_ordering::less);
        });
    for (auto& thread : threads) thread.join();
}

}  // namespace
}  // namespace tidewell
