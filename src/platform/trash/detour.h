#pragma once

#include <string>

#include "platform/posix/link_free.h"

namespace tidewell::trash {

/// How a file gets to its place on a file system that knows no move which leaves alone what stands
/// there, as those of a network often are. A folder takes the place of an empty one that was made
/// for it, which nothing else can do; only a file needs to be told.
enum class Detour {
    overPlaceholder,  ///< into a Trash: over an empty file, where nobody else writes
    byLink,           ///< out of one: by a second name, so that nothing at the place is replaced
};

/// Moves an entry to a place on the same volume where nothing may stand. 0, or the error: EEXIST if
/// something stands there, EINVAL if the file system allows no detour. What fails leaves nothing.
int moveByDetour(const link_free::Place& from, int folder, const std::string& name, Detour detour);

}  // namespace tidewell::trash
