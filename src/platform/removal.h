#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/host.h"
#include "platform/trash.h"

namespace tidewell {

// The one door to deletion: whatever this program removes or moves to the Trash goes through here,
// and only with a path that a guard has approved. Any thread; all of it blocks.
//
// Every operation works on the real location that the guard saw, opened component by component
// without following a link, and then on names below that descriptor. So neither a link that stands
// in a path nor a folder swapped for one meanwhile leads anywhere else.

/// A path that the deletion guard has approved, twice: as it is named, and at its real location.
class DeletablePath {
 public:
    /// As the caller names it.
    const std::string& named() const { return named_; }
    /// Its parent with all links resolved, and its own name.
    const std::string& real() const { return real_; }

 private:
    friend class DeletionGuard;
    DeletablePath(std::string named, std::string real)
        : named_(std::move(named)), real_(std::move(real)) {}

    std::string named_;
    std::string real_;
};

/// A path that may be moved to the Trash, approved in the same two ways.
class TrashablePath {
 public:
    const std::string& named() const { return named_; }
    const std::string& real() const { return real_; }

 private:
    friend class BigItemTrashGuard;
    friend class UninstallGuard;
    TrashablePath(std::string named, std::string real)
        : named_(std::move(named)), real_(std::move(real)) {}

    std::string named_;
    std::string real_;
};

enum class Removal {
    complete,
    incomplete,  ///< something could not be removed and stayed
};

/// Removes a file, a link (the link itself) or a folder with all in it. Goes on after a failure, so
/// that all that can be removed is removed; what is gone already is no failure. Changes no
/// permissions to get its way, and enters no file system that is mounted at the item or inside it:
/// that is a failure of that entry.
Removal removeItem(const DeletablePath& item);

/// Says of a child, by its name, whether it may be removed; asked right before its removal, on any
/// thread, but never on two at once. An answer that does not lie directly in the folder is a
/// refusal.
using ChildGuard = std::function<std::optional<DeletablePath>(std::string_view name)>;

/// Removes the children of a folder that the guard approves, and leaves the folder itself. The
/// folder is opened once, if it is no link and nothing is mounted there, and all is done below that
/// descriptor. A child that the guard refuses, or
/// that cannot be removed, makes the result incomplete; so does a folder that cannot be listed,
/// which loses nothing.
Removal emptyFolder(const DeletablePath& folder, const ChildGuard& guard);

/// Empties one of the user's Trashes for good, by the folder in which its entries lie: like any
/// folder, and what the Trash keeps about an entry goes after it, also where the entry itself was
/// gone before. What is kept about an entry that stays, stays. Any other folder is left alone.
Removal emptyTrash(const DeletablePath& entries, const ChildGuard& guard, const Host& host);

/// What became of something on its way to the Trash.
struct Trashing {
    std::optional<TrashedItem> moved;  ///< what it is there; absent if it stayed where it was
    std::string problem;               ///< then why, a sentence
};

/// Moves an item to the user's Trash, or to the one of the item's own volume, with a single rename
/// that never overwrites: a name that is taken gets " 2", " 3", ... before its extension, and is
/// shortened where it would be too long. The real path from where it came is kept in the Trash.
/// Nothing is ever copied and then deleted, and folders that were made on the way go again if it
/// fails. Refused are a home folder and a Trash that belong to somebody else, a Trash that is a
/// link, one that others may reach into, and an item whose folder was moved meanwhile.
Trashing moveToTrash(const TrashablePath& item, const Host& host);

/// What became of something on its way back.
struct PuttingBack {
    std::optional<std::string> place;  ///< where it lies again; absent if it stayed in the Trash
    std::string problem;               ///< then why, a sentence
};

/// Moves what lies in the Trash to where it came from, with a rename that never overwrites; parents
/// that are missing are made. Refused are a place outside the home folder and the volume of the
/// Trash, one that lies behind a link, one where anything stands, be it a link that leads nowhere,
/// and an item that is not the one which the Trash held when it was listed.
PuttingBack putBack(const TrashedItem& item, const Host& host);

}  // namespace tidewell
