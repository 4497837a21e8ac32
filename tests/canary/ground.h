#pragma once

#include <span>

#include "platform/system.h"

namespace tidewell::test {

struct Key {
    const char* path;  ///< a protected one, relative to the home folder
    const char* file;  ///< below it, or nothing if it is a file itself
};

/// What lies where on machines of one system, and what of it stays whatever the program is asked to
/// do. Written a second time on purpose: the program's own tables stand in its sources.
struct Ground {
    System system;
    std::span<const char* const> treasures;  ///< as SampleMachine takes paths
    std::span<const Key> keys;
    std::span<const char* const> ownFolders;  ///< names in the home folder
    /// Folders relative to the home folder in which nothing goes but below the names that follow.
    std::span<const char* const> profiles;
    std::span<const char* const> profileCaches;
    std::span<const char* const> sweptFolders;
    const char* scratch;  ///< the user's own temporary folder
    const char* trash;    ///< where what is moved to the Trash lies
};

const Ground& groundOf(System system);

}  // namespace tidewell::test
