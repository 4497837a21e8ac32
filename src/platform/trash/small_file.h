#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tidewell::trash {

/// All of a regular file of the user's own in an open folder; absent if it is missing, unreadable,
/// a link, anything else, or longer than `limit` bytes. Never waits.
std::optional<std::string> readSmallFile(int folder, const std::string& name, std::size_t limit);

/// Makes a new file, for the user alone, and sees to it that it reaches the disk. 0, or the error,
/// and then nothing is left of it: EEXIST if anything stands there.
int writeNewFile(int folder, const std::string& name, std::string_view bytes);

}  // namespace tidewell::trash
