#include "kit/words.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

namespace tidewell {

namespace {

namespace fs = std::filesystem;

const std::regex namesOneSystem(
    R"re(\b(Mac|macOS|Apple|Finder|Xcode|iOS|System Settings|Full Disk Access|Applications)\b)re");

auto everyText(System system) {
    constexpr auto count = sizeof(Words) / sizeof(std::string_view);
    return std::bit_cast<std::array<std::string_view, count>>(wordsOf(system));
}

/// What says nothing to users, and what only those see whose machine has such a thing.
const std::set<std::string> exempt = {
    "advisor_content.cpp",   // what is found of simulators, snapshots and their runtimes
    "dev_mode_content.cpp",  // groups of rows that bear the product's name
    "home_content.h",        // the access that is asked for where there is one to grant
    "window_content.h",      // the same
    "status.cpp",            // the same
    "words.cpp",
    "permissions_model.cpp",
};

bool mayBeShown(const fs::path& file) {
    const auto path = file.generic_string();
    const auto ending = file.extension();
    const bool isSource = ending == ".cpp" || ending == ".h" || ending == ".qml";
    const bool shows = path.find("/screens/") != path.npos || path.find("/shell/") != path.npos ||
                       path.find("/cli/") != path.npos || path.find("/kit/") != path.npos;
    return isSource && shows && !exempt.contains(file.filename());
}

}  // namespace

TEST(Words, OfALinuxMachineNameNoOtherSystem) {
    for (const auto text : everyText(System::linux))
        EXPECT_FALSE(std::regex_search(std::string(text), namesOneSystem)) << text;
}

TEST(Words, ThatNameASystemStandInTheirTableAlone) {
    const std::regex literal(R"re("(?:[^"\\]|\\.)*")re");
    int seen = 0;
    for (const auto& entry : fs::recursive_directory_iterator(TIDEWELL_SOURCES)) {
        if (!mayBeShown(entry.path())) continue;
        std::ifstream lines(entry.path());
        for (std::string line; std::getline(lines, line);)
            for (std::sregex_iterator at(line.begin(), line.end(), literal), end; at != end; ++at) {
                ++seen;
                EXPECT_FALSE(std::regex_search(at->str(), namesOneSystem))
                    << entry.path() << ": " << at->str();
            }
    }
    EXPECT_GT(seen, 500);
}

}  // namespace tidewell
