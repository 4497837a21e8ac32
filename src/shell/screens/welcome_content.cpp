#include "shell/screens/welcome_content.h"

#include <array>
#include <string>

namespace tidewell {

namespace {

constexpr std::string_view shortVersionWithoutBundle = "1.0.0";

/// Below the website, whose pages lead on to those elsewhere.
const std::array pages = std::to_array<AboutLink>({
    {"globe", "Website", ""},
    {"camera.fill", "Instagram", "instagram"},
    {"play.rectangle.fill", "YouTube", "youtube"},
    {"hand.raised.fill", "Privacy Policy", "privacy"},
});

}  // namespace

std::string versionLine(const OwnBundle& bundle) {
    auto line = "Version " +
                (bundle.version.empty() ? std::string(shortVersionWithoutBundle) : bundle.version);
    if (!bundle.build.empty()) line += " (" + bundle.build + ")";
    return line;
}

std::vector<AboutLink> aboutLinks(const std::string& website) {
    if (website.empty()) return {};
    std::vector<AboutLink> links(pages.begin(), pages.end());
    for (auto& link : links) link.target = website + link.target;
    return links;
}

}  // namespace tidewell
