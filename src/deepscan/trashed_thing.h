#pragma once

#include <optional>
#include <string>
#include <vector>

#include "deepscan/big_item.h"
#include "platform/host.h"
#include "platform/measured_folders.h"
#include "platform/trash.h"

namespace tidewell {

/// Something in the Trash, with the room that it takes up there.
struct TrashedThing {
    TrashedItem item;
    ByteCount sizeBytes = 0;
    std::optional<BigItem> was = {};  ///< in the list that it was moved from; absent for all else

    /// As it was called where it came from; in the Trash if that is not known.
    std::string name() const;

    bool operator==(const TrashedThing&) const = default;
};

/// Largest first; of equal size in their order.
void sortBySize(std::vector<TrashedThing>& things);

/// All that lies in the user's Trashes, whoever put it there, largest first; nothing on machines
/// whose deep scan does not tell of the Trash. What `known` knows is taken over. Blocks; any thread
/// but the main one.
std::vector<TrashedThing> findTrashed(const Host& host, MeasuredFolders* known = nullptr);

}  // namespace tidewell
