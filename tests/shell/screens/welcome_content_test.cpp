#include "shell/screens/welcome_content.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "shell/screens/window_content.h"

namespace tidewell {
namespace {

TEST(WelcomeContent, TellsTheVersionWithWhatTheBundleHas) {
    const auto line = [](std::string version, std::string build) {
        return versionLine({.identifier = {},
                            .version = std::move(version),
                            .build = std::move(build),
                            .path = {}});
    };
    EXPECT_EQ(line("2.4.1", "310"), "Version 2.4.1 (310)");
    EXPECT_EQ(line("2.4.1", ""), "Version 2.4.1");
    EXPECT_EQ(line("", "310"), "Version 1.0.0 (310)");
    EXPECT_EQ(line("", ""), "Version 1.0.0");
}

TEST(WelcomeContent, LinksLeadToPagesOfTheirOwn) {
    std::vector<std::string_view> labels;
    std::set<std::string_view> targets;
    for (const auto& link : aboutLinks()) {
        labels.push_back(link.label);
        EXPECT_TRUE(link.target.starts_with("https://")) << link.target;
        EXPECT_TRUE(targets.insert(link.target).second) << link.target;
    }
    EXPECT_EQ(labels,
              (std::vector<std::string_view>{"Website", "Instagram", "YouTube", "Privacy Policy"}));
    EXPECT_EQ(aboutLinks()[0].symbol, "globe");
    EXPECT_EQ(aboutLinks()[2].symbol, "play.rectangle.fill");
}

}  // namespace
}  // namespace tidewell
