#pragma once

#include <optional>
#include <string>

#include "platform/posix/link_free.h"
#include "platform/trash/detour.h"

namespace tidewell::trash {

/// An entry by the open folder that holds it, and the path at which that folder was when it was
/// decided that the entry may be moved.
struct SeenPlace {
    link_free::Place place;
    std::string folderPath;
};

/// Moves an entry to a place on the same volume where nothing may stand. Never overwrites, also not
/// what appears there at that very moment; on a file system that cannot promise it, by the detour.
/// 0, or the error: EEXIST if something stands there, EINVAL if there is no detour either, ESTALE
/// if the entry's folder lies elsewhere by now.
int moveWithoutOverwriting(const SeenPlace& from, int folder, const std::string& name,
                           Detour detour);

// Where an entry came from, kept with it; as well as the file system allows. Links keep nothing.
void noteOrigin(int folder, const std::string& name, const std::string& origin);
std::optional<std::string> notedOrigin(int folder, const std::string& name);
void forgetOrigin(int folder, const std::string& name);

}  // namespace tidewell::trash
