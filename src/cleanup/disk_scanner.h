#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/cleanup_model.h"
#include "cleanup/deletion_guard.h"
#include "platform/host.h"
#include "platform/measured_folders.h"

namespace tidewell {

class SweepObstacles;

/// Turns a target into a measured item, cleans what an item names, and owns the one reading of free
/// space of the program. Has no state but the machine that it works
/// on; every operation blocks, may be called from any thread but the main one, and never fails
/// towards its caller: what cannot be read shrinks a figure.
class DiskScanner {
 public:
    struct CleanResult {
        ByteCount freedBytes = 0;                ///< what a second measure shows to be gone
        std::optional<std::string> failedTitle;  ///< the target's, if anything stayed
    };

    explicit DiskScanner(Host host);

    /// Absent for a target that holds nothing on this machine. What `known` knows is taken over; to
    /// `unread` comes what could not be read, also of an absent one.
    std::optional<CleanupItem> measure(const CleanupTarget& target,
                                       MeasuredFolders* known = nullptr,
                                       UnreadThings* unread = nullptr) const;

    /// What stands on the machine of what a target names, and so what cleaning it would work on.
    std::vector<std::string> placesOf(const CleanupTarget& target) const;

    /// Empties the folders and removes the files at the item's resolved paths, for good. Folders at
    /// a resolved path stay, empty. A path of which something could be read at the scan and cannot
    /// be read now counts as wholly there; whatever cannot be read counts as a failure.
    CleanResult clean(const CleanupItem& item) const;

    /// Free space of the home folder's volume; 0 if it cannot be read.
    ByteCount availableCapacity() const;

    /// The entries directly inside a swept folder that have a row of their own in the catalogue, as
    /// components of its paths.
    std::set<std::string, std::less<>> sweepExclusions(std::string_view sweptFolder) const;

    const Host& host() const { return host_; }

 private:
    std::set<std::string> newlyInUse(const CleanupItem& item) const;
    std::vector<std::string> sweptChildren(const std::string& sweptFolder, TargetKind kind,
                                           const SweepObstacles& obstacles) const;
    Removal attempt(const std::string& path) const;
    Removal cleanPath(const std::string& path) const;

    Host host_;
    DeletionGuard guard_;
};

}  // namespace tidewell
