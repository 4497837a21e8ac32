#include "deepscan/big_item.h"

#include <algorithm>
#include <functional>

namespace tidewell {

void sortBySize(std::vector<BigItem>& items) {
    std::ranges::stable_sort(items, std::greater<>{}, &BigItem::sizeBytes);
}

ByteCount totalBytes(const std::vector<BigItem>& items) {
    ByteCount total = 0;
    for (const auto& item : items) total = addSaturating(total, item.sizeBytes);
    return total;
}

}  // namespace tidewell
