#include "platform/text.h"

#include <gtest/gtest.h>

namespace tidewell {

TEST(Text, IsCutToTheColumnsThatThereAre) {
    struct Row {
        std::string_view text;
        int columns;
        std::string_view fitting;
    };
    const Row rows[] = {
        {"42%  Scanning", 4, "42% "},
        {"42%", 3, "42%"},
        {"42%", 2, "42"},
        {"42%", 0, ""},
        {"42%", -1, ""},
        {"", 3, ""},
        {"日本語", 5, "日本"},
        {"e\u0301te\u0301", 2, "e\u0301t"},
        {"日本語", 1, ""},
    };
    for (const auto& [text, columns, fitting] : rows)
        EXPECT_EQ(textThatFits(text, columns), fitting) << text << " in " << columns;
}

}  // namespace tidewell
