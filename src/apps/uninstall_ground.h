#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"

namespace tidewell {

/// Where an uninstall may take something away.
struct UninstallGround {
    std::vector<std::string> below;     ///< whatever lies below these
    std::vector<std::string> directly;  ///< what lies directly in these
    std::vector<std::string> never;     ///< neither these, nor what lies below them
    std::vector<std::string> stays;     ///< neither these, nor what holds them
};

UninstallGround macOSUninstallGround(const Host& host);

/// Looks for where the base folders really lie. Any thread but the main one.
UninstallGround linuxUninstallGround(const Host& host);

/// Looks at the text of a standardised path alone.
bool isOnGround(std::string_view path, const UninstallGround& ground);

}  // namespace tidewell
