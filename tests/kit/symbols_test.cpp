#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "kit/symbols.h"

namespace tidewell {
namespace {

namespace fs = std::filesystem;

std::string textOf(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool isScreen(const fs::path& path) {
    const auto stem = path.stem().string();
    return path.extension() == ".qml" || stem.ends_with("_content") || stem.ends_with("_screen");
}

/// What the screens' sources say of symbols: names in the field of one (which may have colours
/// too), and names that only a symbol has.
std::set<std::string> symbolsOnScreens() {
    const std::regex named(R"re([sS]ymbol(?!Color|Background)\w*\W{1,4}"([a-z0-9.]+)"|)re"
                           R"re("([a-z0-9.]+\.fill|(?:chevron|arrow|checkmark)[a-z0-9.]*)")re");
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(TIDEWELL_SOURCES)) {
        if (!isScreen(entry.path())) continue;
        const auto text = textOf(entry.path());
        for (std::sregex_iterator match(text.begin(), text.end(), named), end; match != end;
             ++match)
            names.insert((*match)[1].matched ? (*match)[1].str() : (*match)[2].str());
    }
    return names;
}

TEST(Symbols, AreDrawnForEveryNameOnTheScreens) {
    const auto names = symbolsOnScreens();
    EXPECT_TRUE(names.contains("hammer.fill"));
    EXPECT_TRUE(names.contains("scope"));
    for (const auto& name : names) EXPECT_NE(symbolGlyph(name).glyph, 0u) << name;
}

}  // namespace
}  // namespace tidewell
