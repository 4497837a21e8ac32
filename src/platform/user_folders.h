#pragma once

#include <array>
#include <span>
#include <string_view>

#include "platform/system.h"

namespace tidewell {

/// The folders directly in a home folder in which the system has people keep their own files.
inline constexpr std::array<std::string_view, 8> macOSUserFolders = {
    "Documents", "Desktop", "Downloads", "Pictures", "Movies", "Music", "Public", "Sites",
};

/// Their English names; what they are called in a home folder of another language stands in its
/// user-dirs.dirs.
inline constexpr std::array<std::string_view, 10> linuxUserFolders = {
    "Documents", "Desktop", "Downloads", "Pictures", "Movies",
    "Music",     "Public",  "Sites",     "Videos",   "Templates",
};

constexpr std::span<const std::string_view> userFolderNames(System system) {
    switch (system) {
        case System::macOS:
            return macOSUserFolders;
        case System::linux:
            return linuxUserFolders;
    }
    return {};
}

}  // namespace tidewell
