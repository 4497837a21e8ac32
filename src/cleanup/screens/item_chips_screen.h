#pragma once

#include <string>
#include <vector>

#include "cleanup/screens/review_content.h"
#include "kit/qt/list_model.h"

namespace tidewell {

// What makes a list of items one for QML, in every tool that ticks items.

std::string itemChipKey(const ItemChipContent& chip);
std::vector<ListModel<ItemChipContent>::Role> itemChipRoles();

}  // namespace tidewell
