#include "cleanup/item_selection.h"

#include <algorithm>

namespace tidewell {

CleanupItems selectedItems(const CleanupItems& items) {
    CleanupItems selected;
    std::ranges::copy_if(items, std::back_inserter(selected), &CleanupItem::isSelected);
    return selected;
}

const CleanupItem* findItem(const CleanupItems& items, std::string_view id) {
    const auto found = std::ranges::find(
        items, id, [](const auto& item) { return std::string_view(item.target.id); });
    return found == items.end() ? nullptr : &*found;
}

void sortBySize(CleanupItems& items) {
    std::ranges::stable_sort(items, std::ranges::greater{}, &CleanupItem::sizeBytes);
}

}  // namespace tidewell
