#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/kept_entries.h"
#include "platform/host.h"
#include "platform/identity.h"
#include "platform/mount_table.h"

namespace tidewell {

/// What must stay on a machine, and where it lies at one moment: the personal folders, the keys,
/// and what the links inside a folder of keys lead to. People keep such things elsewhere and link
/// to them or mount them, so that they are known by what they are, not by a path's text. Looks at
/// the disk when it is made and when it is asked; any thread but the main one.
class KeptPlaces {
 public:
    explicit KeptPlaces(const Host& host) : KeptPlaces(host, keptEntries(host)) {}
    KeptPlaces(const Host& host, KeptEntries entries);

    /// The paths by which what stands at a real location is to be judged. The location itself comes
    /// first. Then where else the same thing is mounted, and for what lies in something that is
    /// kept its path below the entry by which the user knows that: "{home}/Documents/x" for the
    /// "x" in a folder that Documents leads to.
    std::vector<std::string> namesOf(std::string_view real) const;

    /// The same for many at one moment: what was found of a folder is taken over from there.
    using FolderNames = std::map<std::string, std::vector<std::string>, std::less<>>;
    std::vector<std::string> namesOf(std::string_view real, FolderNames& known) const;

    /// The same for an entry of a folder whose names are known.
    std::vector<std::string> namesIn(const std::vector<std::string>& folder,
                                     std::string_view name) const;

    /// Whether what has these names is something that is kept, or holds some, or holds the home
    /// folder: it cannot go as a whole.
    bool mustStay(const std::vector<std::string>& names) const;

    /// Whether what has these names lies in a key or a profile, or is one.
    bool isInKeys(const std::vector<std::string>& names) const;

    /// Whether what has these names lies in a personal folder, or is one.
    bool isPersonal(const std::vector<std::string>& names) const;

    /// By the paths under which the user knows them.
    const KeptEntries& entries() const { return known_; }

    /// Whether all names of a real location could be found. Not where the system hides what is
    /// mounted, and the place is on another mount than the home folder; and nowhere if it could not
    /// be told where a link that is kept, or lies among keys, leads.
    bool knowsNamesOf(const std::string& real) const;

 private:
    void keep(const std::string& entry);
    void keepWhatIsLinkedIn(const std::string& keyFolder);
    void addLocation(std::string entry, const std::string& location);
    void addHolders(std::string_view location);

    KeptEntries known_;
    std::string home_;
    MountTable mounts_ = MountTable::read();
    /// The entries by which the user knows what is kept, by each location that it has.
    std::multimap<std::string, std::string, std::less<>> entries_;
    std::multimap<Identity, std::string> entriesByIdentity_;
    std::map<std::string, std::optional<Identity>, std::less<>> holders_;  ///< folders of those
    std::set<Identity> holderIdentities_;
    bool isAllOnOneMount_ = true;
    bool isAllFound_ = true;
};

}  // namespace tidewell
