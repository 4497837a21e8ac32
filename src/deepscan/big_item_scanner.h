#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/kept_places.h"
#include "deepscan/big_item.h"
#include "deepscan/big_item_trash_guard.h"
#include "deepscan/folder_knowledge.h"
#include "platform/freed_usage.h"
#include "platform/host.h"
#include "platform/measured_folders.h"

namespace tidewell {

/// What an entry must occupy to be listed; "80 MB" to the user.
inline constexpr ByteCount bigItemThreshold = ByteCount{80} * 1024 * 1024;

constexpr bool isBigItem(ByteCount size) {
    return size >= bigItemThreshold;
}

/// What an entry is by its name and its place in the home folder alone.
BigItem::Kind classifyBigItem(std::string_view path, const Host& host, const KeptEntries& kept);

/// The same by every name of the place where it really lies: personal if one of them says so, and
/// if something that must stay is in it.
BigItem::Kind classifyPlace(const std::string& path, const Host& host, const KeptPlaces& kept);
/// Where the names are known, none if nothing stands there.
BigItem::Kind classifyPlace(const std::string& path, const std::vector<std::string>& names,
                            const Host& host, const KeptPlaces& kept);

/// The same once the folder is known: a fact overrules it where losing the folder hurts, and where
/// it surely does not.
BigItem::Kind finalKind(BigItem::Kind classified, const std::optional<FolderKnowledge::Fact>& fact);

/// Finds what takes the room in the home folder, whatever it is, and moves single items to the
/// Trash. Has no state but the machine that it works on; every operation blocks, may be called from
/// any thread but the main one, and never fails towards its caller: what cannot be read is passed
/// over.
class BigItemScanner {
 public:
    struct TrashOutcome {
        std::string name;  ///< the item's
        ByteCount freedBytes = 0;
        bool success = false;
        std::optional<TrashedItem> moved = {};  ///< what it is in the Trash, if it was moved
        std::string reason = {};  ///< why it stayed, a sentence; empty if it was moved
    };

    /// Gets the share of the candidates that are measured, from above 0 to exactly 1.
    using Progress = std::function<void(double)>;

    explicit BigItemScanner(Host host);

    /// The entries that occupy enough, of the folders in which the machine's programs keep their
    /// data, and of the visible folders of the home folder. One that holds such a folder, or a
    /// container's disks, is opened in its stead, so that nothing is counted twice. Largest first;
    /// of equal size in the order of the walk. An entry is one item however deep it goes.
    /// `progress` is called on the caller's thread after each measure. What `known` knows is taken
    /// over; to `unread` comes what could not be read.
    std::vector<BigItem> scan(const Progress& progress = {}, MeasuredFolders* known = nullptr,
                              UnreadThings* unread = nullptr) const;

    /// Refuses what the guard refuses. Nothing is measured again: a moved item frees its size as it
    /// was found.
    TrashOutcome trash(const BigItem& item) const;

    /// Undoes such a move. See platform/removal.h.
    PuttingBack putBack(const TrashedItem& item) const { return tidewell::putBack(item, host_); }

 private:
    std::vector<std::string> homeEntries() const;
    std::vector<std::string> candidates() const;
    BigItem describe(const std::string& path, const FreedUsage& usage,
                     const KeptPlaces& kept) const;

    Host host_;
    BigItemTrashGuard guard_;
};

}  // namespace tidewell
