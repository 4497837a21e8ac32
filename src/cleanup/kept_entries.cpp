#include "cleanup/kept_entries.h"

#include <algorithm>

#include "platform/path_text.h"

namespace tidewell {

KeptEntries keptEntries(const Host& host) {
    KeptEntries kept;
    for (const auto name : personalFolders)
        kept.personalFolders.push_back(joinPath(host.home, name));
    for (const auto path : protectedHomePaths) kept.keys.push_back(joinPath(host.home, path));
    return kept;
}

bool isInKeys(std::string_view path, const KeptEntries& kept) {
    return std::ranges::any_of(kept.keys,
                               [path](const auto& key) { return isAtOrBelow(path, key); });
}

const std::string* personalFolderOf(std::string_view path, const KeptEntries& kept) {
    const auto found = std::ranges::find_if(
        kept.personalFolders, [path](const auto& folder) { return isAtOrBelow(path, folder); });
    return found == kept.personalFolders.end() ? nullptr : &*found;
}

}  // namespace tidewell
