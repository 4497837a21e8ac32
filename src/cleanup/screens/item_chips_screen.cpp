#include "cleanup/screens/item_chips_screen.h"

#include "kit/qt/text.h"

namespace tidewell {

std::string itemChipKey(const ItemChipContent& chip) {
    return chip.id;
}

std::vector<ListModel<ItemChipContent>::Role> itemChipRoles() {
    using Chip = ItemChipContent;
    return {
        {"title", [](const Chip& chip) { return toText(chip.title); }},
        {"detail", [](const Chip& chip) { return toText(chip.detail); }},
        {"size", [](const Chip& chip) { return toText(chip.size); }},
        {"isOn", [](const Chip& chip) { return chip.isOn; }},
        {"badge", [](const Chip& chip) { return toText(chip.badge); }},
    };
}

}  // namespace tidewell
