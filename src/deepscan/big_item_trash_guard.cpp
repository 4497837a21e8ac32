#include "deepscan/big_item_trash_guard.h"

#include <algorithm>
#include <utility>

#include "cleanup/kept_places.h"
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

std::optional<TrashablePath> BigItemTrashGuard::approve(const BigItem& item) const {
    if (host_.homeOwner != HomeOwner::user || !isTrashable(item.kind) ||
        !isDeepInHome(item.path(), host_.home))
        return std::nullopt;
    auto real = realLocation(item.path());
    if (!real || !isDeepInHome(*real, host_.home)) return std::nullopt;
    const KeptPlaces kept(host_);
    const auto names = kept.namesOf(*real);
    const auto isTopFolder = [this](const std::string& name) {
        return isBelow(name, host_.home) && !isDeepInHome(name, host_.home);
    };
    if (!kept.knowsNamesOf(*real) || kept.mustStay(names) || kept.isInKeys(names) ||
        std::ranges::any_of(names, isTopFolder))
        return std::nullopt;
    return TrashablePath(item.path(), std::move(*real));
}

}  // namespace tidewell
