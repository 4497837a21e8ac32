#include "shell/screens/welcome_content.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "shell/screens/window_content.h"

namespace tidewell {
namespace {

TEST(WelcomeContent, SaysWhatTheProgramIsFor) {
    EXPECT_EQ(productName, "Tidewell");
    EXPECT_EQ(purposeLine,
              "Tidewell finds and removes unnecessary files to deep clean your Mac, free up "
              "storage, and help it run faster.");
    EXPECT_EQ(getStartedLabel, "Get Started");
    EXPECT_EQ(aboutLabel, "About Tidewell");
    EXPECT_EQ(usageLine,
              "Scan your storage, review what's taking up space, and remove only what you no "
              "longer need.");
    EXPECT_EQ(privacyLine, "Your files stay yours. No one else can read them, not even us.");
    EXPECT_EQ(aboutFooter, "Made with care for your Mac.");
}

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
