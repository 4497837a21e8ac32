#include "deepscan/big_item_trash_guard.h"

#include <algorithm>
#include <utility>

#include "cleanup/kept_places.h"
#include "deepscan/knowledge/knowledge.h"
#include "deepscan/walk_roots.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

bool isTrashable(BigItem::Kind kind) {
    return kind != BigItem::Kind::container;
}

bool isDeepInHome(std::string_view path, std::string_view home) {
    const auto standardPath = standardizedPath(path);
    const auto standardHome = standardizedPath(home);
    if (!isBelow(standardPath, standardHome)) return false;
    return pathPieces(pathRelativeTo(standardPath, standardHome)).size() > 1;
}

/// Whether an item may go by where it lies, on machines of that system.
bool BigItemTrashGuard::isGround(std::string_view path) const {
    switch (deepScanKnowledge(host_.system).topEntries) {
        case TopEntries::neverGo:
            return isDeepInHome(path, host_.home);
        case TopEntries::goUnlessRoots:
            return isBelow(standardizedPath(path), host_.home) && !holdsGround(path);
    }
    return false;
}

bool BigItemTrashGuard::holdsGround(std::string_view path) const {
    const auto standardPath = standardizedPath(path);
    const auto isIn = [&standardPath](const std::string& folder) {
        return isAtOrBelow(folder, standardPath);
    };
    const auto disks = walkExclusions(host_);
    const auto liesOnDisks = [&standardPath](const std::string& folder) {
        return isAtOrBelow(standardPath, folder);
    };
    return std::ranges::any_of(walkRoots(host_), isIn) || std::ranges::any_of(disks, isIn) ||
           std::ranges::any_of(disks, liesOnDisks);
}

std::optional<TrashablePath> BigItemTrashGuard::approve(const BigItem& item) const {
    if (!host_.mayRemove() || !isTrashable(item.kind) || !isGround(item.path()))
        return std::nullopt;
    auto real = realLocation(item.path());
    if (!real || !isGround(*real)) return std::nullopt;
    const KeptPlaces kept(host_);
    const auto names = kept.namesOf(*real);
    const auto isTopFolder = [this](const std::string& name) {
        return isBelow(name, host_.home) && !isGround(name);
    };
    if (!kept.knowsNamesOf(*real) || kept.mustStay(names) || kept.isInKeys(names) ||
        std::ranges::any_of(names, isTopFolder))
        return std::nullopt;
    return TrashablePath(item.path(), std::move(*real));
}

}  // namespace tidewell
