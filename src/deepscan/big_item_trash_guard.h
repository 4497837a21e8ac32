#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "deepscan/big_item.h"
#include "platform/host.h"
#include "platform/removal.h"

namespace tidewell {

/// Whether an item of this kind may go to the Trash at all. A virtual disk may not: everything
/// inside it would go too.
bool isTrashable(BigItem::Kind kind);

/// Whether a path lies below the home folder, and not directly: a top folder such as Documents is
/// never moved as a whole. Looks at the standardised text alone.
bool isDeepInHome(std::string_view path, std::string_view home);

/// Decides which found items may be moved to the Trash. Any thread.
class BigItemTrashGuard {
 public:
    explicit BigItemTrashGuard(const Host& host) : host_(host) {}

    /// Asks for the item's depth as its path is named, and under every name of its real location.
    /// So neither a folder that is a link out of the home folder, nor one that is a link back up to
    /// it, gets anything past the guard; nor does what a personal folder leads to, or what holds
    /// keys or a personal folder. Absent also if the folder that holds the item is missing.
    std::optional<TrashablePath> approve(const BigItem& item) const;

 private:
    bool isGround(std::string_view path) const;
    bool holdsGround(std::string_view path) const;

    Host host_;
};

}  // namespace tidewell
