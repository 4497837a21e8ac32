#include "shell/screens/welcome_content.h"

#include <array>

namespace tidewell {

namespace {

constexpr std::string_view shortVersionWithoutBundle = "1.0.0";

/// The addresses are for whoever ships the program to settle. The reserved domain, which leads
/// nowhere, stands for a website until then, and its pages lead on to those elsewhere.
constexpr std::array links = std::to_array<AboutLink>({
    {"globe", "Website", "https://tidewell.example/"},
    {"camera.fill", "Instagram", "https://tidewell.example/instagram"},
    {"play.rectangle.fill", "YouTube", "https://tidewell.example/youtube"},
    {"hand.raised.fill", "Privacy Policy", "https://tidewell.example/privacy"},
});

}  // namespace

std::string versionLine(const OwnBundle& bundle) {
    auto line = "Version " +
                (bundle.version.empty() ? std::string(shortVersionWithoutBundle) : bundle.version);
    if (!bundle.build.empty()) line += " (" + bundle.build + ")";
    return line;
}

std::span<const AboutLink> aboutLinks() {
    return links;
}

}  // namespace tidewell
