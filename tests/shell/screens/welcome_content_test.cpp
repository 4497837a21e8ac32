#include "shell/screens/welcome_content.h"

#include <gtest/gtest.h>

#include <string>

namespace tidewell {
namespace {

TEST(WelcomeContent, TellsTheVersionWithWhatTheBundleHas) {
    const auto line = [](std::string version, std::string build) {
        return versionLine({.identifier = {},
                            .version = std::move(version),
                            .build = std::move(build),
                            .path = {},
                            .website = {}});
    };
    EXPECT_EQ(line("2.4.1", "310"), "Version 2.4.1 (310)");
    EXPECT_EQ(line("2.4.1", ""), "Version 2.4.1");
    EXPECT_EQ(line("", "310"), "Version 1.0.0 (310)");
    EXPECT_EQ(line("", ""), "Version 1.0.0");
}

}  // namespace
}  // namespace tidewell
