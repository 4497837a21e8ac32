#pragma once

#include "platform/trash/macos_trash.h"
#include "platform/trash/trash_layout.h"

namespace tidewell::trash {

/// The Trash that all programs of a desktop share: a folder `files` with the entries and beside it
/// `info` with a small text about each. The home folder's is `{data}/Trash`; another volume's is
/// `.Trash/UID` at its top, where the administrator has made a `.Trash` for all, else `.Trash-UID`.
class DesktopTrashLayout final : public TrashLayout {
 public:
    explicit DesktopTrashLayout(const Host& host);

    void gather() const override;
    OpenedTrash openHome(NewFolders& folders) const override;
    OpenedTrash openOfVolume(const VolumeTop& volume, NewFolders& folders) const override;
    std::vector<std::string> homePlaces() const override;
    std::vector<std::string> placesOfVolume(const std::string& top) const override;
    OpenedTrash openAt(const std::string& place) const override;

 private:
    /// The folder in which the home folder's Trash lies, and its path.
    OrProblem<VolumeTop> openData(NewFolders& folders) const;
    OrProblem<VolumeTop> openDataBehind(const link_free::Place& link,
                                        const std::string& linkFolder) const;
    bool isOwnGround(const std::string& path, const posix::Descriptor& folder) const;

    Host host_;
    /// Where this program moved things before it knew of the desktop's Trash.
    MacosTrashLayout older_;
};

}  // namespace tidewell::trash
