#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/host.h"

namespace tidewell {

// Every word of the first-run screen and of the About sheet. Pure.

inline constexpr std::string_view productName = "Tidewell";
inline constexpr std::string_view getStartedLabel = "Get Started";

inline constexpr std::string_view usageLine =
    "Scan your storage, review what's taking up space, and remove only what you no longer need.";
inline constexpr std::string_view privacyLine =
    "Your files stay yours. No one else can read them, not even us.";
inline constexpr std::string_view privacySymbol = "lock.shield.fill";
inline constexpr std::string_view closeAboutLabel = "Close";
inline constexpr std::string_view closeAboutSymbol = "xmark";
inline constexpr std::string_view outwardSymbol = "arrow.up.right";

/// "Version 1.2.0 (7)"; the build is left out where there is none.
std::string versionLine(const OwnBundle& bundle);

struct AboutLink {
    std::string_view symbol;
    std::string_view label;
    std::string_view target;

    bool operator==(const AboutLink&) const = default;
};

std::span<const AboutLink> aboutLinks();

}  // namespace tidewell
