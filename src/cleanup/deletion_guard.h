#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"
#include "platform/removal.h"

namespace tidewell {

/// The temporary folder and the per-user cache folder, as far as the machine has them.
std::vector<std::string> deletableRoots(const Host& host);

class KeptPlaces;
struct KeptEntries;

/// The rule of the deletion guard that decided about a path.
enum class DeletionRule {
    protectedPath,   ///< keys, credentials and profiles: never
    namedCache,      ///< a cache inside a profile that a row names: yes
    deletableRoot,   ///< scratch space, and what lies in the Trash: yes
    outsideHome,     ///< outside the home folder, or that folder itself: never
    neverSwept,      ///< other programs' state that only looks like a cache: never
    openFolder,      ///< in the home folder, outside the personal folders: yes
    buildFolder,     ///< in a personal folder, inside build output: yes
    personalFolder,  ///< in a personal folder otherwise: never
};

bool allows(DeletionRule rule);

/// Decides on the text of the path alone, standardised. The first rule that applies wins. `home`
/// and `roots` are standardised too.
DeletionRule deletionRule(std::string_view path, std::string_view home,
                          const std::vector<std::string>& roots, const KeptEntries& kept);

/// The last word on whether a path may be removed, and the only maker of a DeletablePath. Any
/// thread.
class DeletionGuard {
 public:
    explicit DeletionGuard(const Host& host);

    /// The rule that decides about a path: as it is named, and then under every name of the place
    /// where it really lies, the first that refuses. So a `~/.cache` that leads into Documents is
    /// refused, and so are keys that were put elsewhere, from either side; whether by links, by
    /// mounts or by letter case. Only the name counts if the folder that holds the path is missing.
    DeletionRule verdict(const std::string& path) const;
    /// The same for whoever asks much at one moment: by the names that were found of the place,
    /// none if the folder that holds it is missing.
    DeletionRule verdict(const std::string& path, const std::vector<std::string>& names,
                         const KeptPlaces& seen) const;
    KeptPlaces keptPlaces() const;

    /// The path, if the verdict allows it and the folder that holds it exists.
    std::optional<DeletablePath> approve(const std::string& path) const;

    /// The same question for each entry of an approved folder, from what the disk holds now. An
    /// entry is removed with all in it, so one that holds keys or a personal folder is refused as
    /// well.
    ChildGuard childGuard(const DeletablePath& folder) const;

 private:
    struct View;

    DeletionRule judge(std::string_view named, const std::vector<std::string>& names,
                       const KeptPlaces& kept) const;

    Host host_;
    std::vector<std::string> namedByRows_;
    std::vector<std::string> roots_;
    std::vector<std::string> realRoots_;  ///< where the roots lay when the guard was made
};

}  // namespace tidewell
