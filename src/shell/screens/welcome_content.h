#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"

namespace tidewell {

// Every word of the first-run screen and of the About sheet. Pure.

/// "Version 1.2.0 (7)"; the build is left out where there is none.
std::string versionLine(const OwnBundle& bundle);

struct AboutLink {
    std::string_view symbol;
    std::string_view label;
    std::string target;

    bool operator==(const AboutLink&) const = default;
};

/// To the pages of the website; none where there is no website.
std::vector<AboutLink> aboutLinks(const std::string& website);

}  // namespace tidewell
