#include "deepscan/big_item_trash_guard.h"

#include <utility>

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
    if (homeOwner_ != HomeOwner::user || !isTrashable(item.kind) ||
        !isDeepInHome(item.path(), home_))
        return std::nullopt;
    auto real = realLocation(item.path());
    if (!real || !isDeepInHome(*real, home_)) return std::nullopt;
    return TrashablePath(item.path(), std::move(*real));
}

}  // namespace tidewell
