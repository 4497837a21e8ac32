#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/byte_count.h"

namespace tidewell {

/// One big thing that the deep scan found, whichever of its scanners did.
struct BigItem {
    /// What the item is to the user, and so what may be done with it.
    enum class Kind {
        container,    ///< a virtual disk, freed from inside its tool and never trashed
        installer,    ///< a disk image or an installer package
        cache,        ///< refilled by the program that it belongs to
        rebuildable,  ///< dependencies and build output of a project
        appData,      ///< may hold sign-ins and settings
        personal,     ///< the user's own files
        other,
    };

    std::string id;        ///< the absolute path, standardised; unique within a result
    std::string name;      ///< the title: the path's last component, or a label
    std::string location;  ///< where it lies, as the user reads it
    ByteCount sizeBytes = 0;
    ByteCount sharedBytes = 0;  ///< what more of it would stay, since it has names elsewhere
    bool isDirectory = false;
    Kind kind = Kind::other;
    std::optional<std::string> note;
    std::optional<std::string> reclaimCommand;  ///< frees the room from inside the tool

    const std::string& path() const { return id; }
    bool operator==(const BigItem&) const = default;
};

/// Largest first; items of equal size keep their order.
void sortBySize(std::vector<BigItem>& items);

/// The sizes of all items together.
ByteCount totalBytes(const std::vector<BigItem>& items);

}  // namespace tidewell
