#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/byte_count.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/identity.h"

namespace tidewell {

/// Something that lies in a Trash, whoever put it there.
struct TrashedItem {
    std::string folder;                 ///< the Trash's
    std::string name;                   ///< in the Trash; often another one than it had
    std::string path;                   ///< where it lies now
    std::optional<std::string> origin;  ///< where it came from; absent if the Trash does not say
    std::optional<Date> deletedAt;
    bool isFolder = false;
    Identity identity;

    bool operator==(const TrashedItem&) const = default;
};

/// What lies in the Trashes of the user: the one of his home folder, then those of the mounted
/// volumes, each in ascending byte order of the names. Changes nothing. What is missing,
/// unreadable, a link or somebody else's counts as empty. Blocks; any thread.
std::vector<TrashedItem> trashedItems(const Host& host);

/// The folders of the same Trashes in which the entries lie: their real paths. Emptied with
/// emptyTrash, which is told of in removal.h.
std::vector<std::string> trashFolders(const Host& host);

}  // namespace tidewell
