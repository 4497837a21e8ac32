#pragma once

#include <string>
#include <utility>
#include <vector>

#include "deepscan/big_item.h"

namespace tidewell::test {

inline BigItem bigItem(std::string path, BigItem::Kind kind, ByteCount size = 90'000'000) {
    BigItem item;
    item.name = path.substr(path.rfind('/') + 1);
    item.id = std::move(path);
    item.sizeBytes = size;
    item.kind = kind;
    return item;
}

inline std::vector<std::string> idsOf(const std::vector<BigItem>& items) {
    std::vector<std::string> ids;
    for (const auto& item : items) ids.push_back(item.id);
    return ids;
}

}  // namespace tidewell::test
