#pragma once

#include <set>
#include <string>
#include <vector>

#include "ground.h"
#include "snapshot.h"

namespace tidewell::test {

/// What a clean may remove from a machine, worked out from its disk alone. Written a second time on
/// purpose: it shares no line and no table with the program's own guard.
class Rules {
 public:
    using Items = std::vector<std::vector<std::string>>;

    /// `reviewed` are the paths of each item that the program showed before, as it showed them.
    Rules(const Ground& ground, const Snapshot& machine, const std::string& root, std::string home,
          const Items& reviewed);

    /// Whether the entry, by its real path, may be gone afterwards.
    bool mayGo(const std::string& path) const;

    /// Whether the entry lies at or below a reviewed path in which something may be removed.
    bool isInArea(const std::string& path) const;

    /// Where the reviewed paths really lie, item by item.
    const Items& items() const { return items_; }

 private:
    void addKeys();
    void addLinksBelow(const std::string& folder);
    bool isKeptInProfile(const std::string& path) const;
    bool isOpen(const std::string& path) const;
    bool isKey(const std::string& path) const;
    bool holdsKey(const std::string& path) const;

    const Ground& ground_;
    std::string scratch_;
    std::string home_;
    std::set<std::string> keys_;
    std::vector<std::string> own_;
    Items items_;
    std::vector<std::string> areas_;
};

}  // namespace tidewell::test
