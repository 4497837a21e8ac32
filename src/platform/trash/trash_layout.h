#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/host.h"
#include "platform/trash.h"
#include "platform/trash/exclusive_move.h"
#include "platform/trash/new_folders.h"
#include "platform/trash/problem.h"
#include "platform/trash/volume_top.h"

namespace tidewell::trash {

/// What a Trash is to remember of an entry.
struct Departure {
    std::string origin;  ///< its real path
    Date date;
};

/// A Trash of the user's own whose folders are open, none of them reached through a link.
class OpenTrash {
 public:
    virtual ~OpenTrash() = default;

    virtual const std::string& path() const = 0;
    /// The folder in which the entries lie.
    virtual int entries() const = 0;
    /// Moves an entry in, under a name that nothing has in this Trash.
    virtual OrProblem<TrashedItem> take(const SeenPlace& item, const Departure& departure) = 0;
    /// What the Trash kept about an entry that has left it for `place`.
    virtual void forget(const TrashedItem& item, const link_free::Place& place) = 0;
    /// In ascending byte order of the names.
    virtual std::vector<TrashedItem> items() const = 0;

    virtual std::string entriesPath() const = 0;
    /// The names of what it keeps about entries, whether these are there or not.
    virtual std::vector<std::string> notes() const { return {}; }
    /// Drops those among the notes that belong to no entry that is there now.
    virtual void dropOrphans(const std::vector<std::string>& /*notes*/) {}
};

using OpenedTrash = OrProblem<std::unique_ptr<OpenTrash>>;

/// Where a system keeps the Trashes of a user and how they look inside.
class TrashLayout {
 public:
    virtual ~TrashLayout() = default;

    /// To be called when the user asks for something to be moved: what earlier programs have left
    /// in other places comes over.
    virtual void gather() const {}

    virtual OpenedTrash openHome(NewFolders& folders) const = 0;
    virtual OpenedTrash openOfVolume(const VolumeTop& volume, NewFolders& folders) const = 0;

    /// Where the user's Trashes may lie: of the home folder, and of a volume by its topmost folder.
    virtual std::vector<std::string> homePlaces() const = 0;
    virtual std::vector<std::string> placesOfVolume(const std::string& top) const = 0;
    /// The one at such a place.
    virtual OpenedTrash openAt(const std::string& place) const = 0;
};

std::unique_ptr<TrashLayout> layoutOf(const Host& host);

}  // namespace tidewell::trash
