#include "deepscan/big_item.h"

#include "platform/sum.h"

#include <algorithm>
#include <functional>

namespace tidewell {

void sortBySize(std::vector<BigItem>& items) {
    std::ranges::stable_sort(items, std::greater<>{}, &BigItem::sizeBytes);
}

ByteCount totalBytes(const std::vector<BigItem>& items) {
    return sumOf(items, &BigItem::sizeBytes);
}

}  // namespace tidewell
