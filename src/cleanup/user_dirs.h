#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"

namespace tidewell {

/// A folder that a desktop has the user keep files of one kind in.
struct UserDir {
    std::string kind;  ///< "DOCUMENTS", "DOWNLOAD", "VIDEOS", ...
    std::string path;  ///< absolute, standardised
};

/// What the text of a user-dirs.dirs says. Lines that are no assignment, and values that are
/// neither absolute nor below $HOME, are passed over; so is a value that is the home folder or
/// above it, which stands for no folder at all.
std::vector<UserDir> parseUserDirs(std::string_view text, const Host& host);

/// The user's own, as the desktop's file among the settings names them, in whatever language; none
/// if it is missing, unreadable or far too long, and on machines that have no such file. Any thread
/// but the main one.
std::vector<UserDir> userDirs(const Host& host);

}  // namespace tidewell
