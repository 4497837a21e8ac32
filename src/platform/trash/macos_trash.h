#pragma once

#include "platform/trash/trash_layout.h"

namespace tidewell::trash {

/// `~/.Trash`, and `.Trashes/UID` at the top of other volumes. Where an entry came from is kept in
/// an attribute of the entry itself.
class MacosTrashLayout final : public TrashLayout {
 public:
    /// Which entries are listed: all, or those that this program moved there.
    enum class Shown { everything, whatHasAnOrigin };

    explicit MacosTrashLayout(std::string home, Shown shown = Shown::everything)
        : home_(std::move(home)), shown_(shown) {}

    OpenedTrash openHome(NewFolders& folders) const override;
    OpenedTrash openOfVolume(const VolumeTop& volume, NewFolders& folders) const override;
    std::vector<std::string> homePlaces() const override;
    std::vector<std::string> placesOfVolume(const std::string& top) const override;
    OpenedTrash openAt(const std::string& place) const override;

 private:
    std::string home_;
    Shown shown_;
};

}  // namespace tidewell::trash
