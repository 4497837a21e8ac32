#pragma once

#include <string>

namespace tidewell {

// What the content of a cache folder says about it. Blocks; any thread but the main one.

/// Whether the folder's program says in a CACHEDIR.TAG of its own that all in it can be made again.
/// A tag that is a link, no file, or larger than such a note would be, says nothing.
bool isTaggedCache(const std::string& folder);

/// Whether the folder, or one of those at most two levels down, is a virtual environment: programs
/// are installed there that nothing installs again by itself.
bool holdsVirtualEnvironment(const std::string& folder);

}  // namespace tidewell
