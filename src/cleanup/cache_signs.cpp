#include "cleanup/cache_signs.h"

#include <string_view>

#include "platform/file_start.h"
#include "platform/folder_walk.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::string_view tagSignature = "Signature: 8a477f597d28d172789f06886806bc55";
constexpr std::size_t largestTag = 4096;

/// The level of what lies in a folder two levels down.
constexpr int environmentLevel = 3;

}  // namespace

bool isTaggedCache(const std::string& folder) {
    const auto tag = fileStart(joinPath(folder, "CACHEDIR.TAG"), tagSignature.size());
    return tag && tag->bytes == tagSignature && tag->fileSize <= largestTag;
}

bool holdsVirtualEnvironment(const std::string& folder) {
    bool holdsOne = false;
    walkFolder(folder, HiddenEntries::visit, [&holdsOne](const WalkEntry& entry) {
        if (entry.name == "pyvenv.cfg" && entry.type != EntryType::folder) holdsOne = true;
        return holdsOne || entry.level >= environmentLevel ? Descent::skip : Descent::enter;
    });
    return holdsOne;
}

}  // namespace tidewell
