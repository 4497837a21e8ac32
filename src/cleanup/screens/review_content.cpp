#include "cleanup/screens/review_content.h"

#include <algorithm>

#include "kit/byte_text.h"
#include "kit/left_out.h"
#include "kit/shared_note.h"

namespace tidewell {

namespace {

std::optional<CleanupCategory> categoryInView(const std::vector<CleanupCategory>& active,
                                              std::optional<CleanupCategory> wanted) {
    if (wanted && std::ranges::find(active, *wanted) != active.end()) return wanted;
    if (active.empty()) return std::nullopt;
    return active.front();
}

CategoryRowContent categoryRow(const CleanupViewModel& model, CleanupCategory category,
                               std::optional<CleanupCategory> viewing) {
    const auto count = model.countIn(category);
    const auto selected = model.selectedCountIn(category);
    const auto bytes = model.bytesIn(category);
    return {
        .category = category,
        .symbol = symbol(category),
        .title = title(category),
        .line = std::to_string(selected) + " of " + std::to_string(count) + " · " + byteText(bytes),
        .mark = checkMark(selected, count),
        .count = count,
        .selectedCount = selected,
        .bytes = bytes,
        .isViewing = category == viewing,
    };
}

}  // namespace

std::string_view itemBadge(const CleanupItem& item, std::string_view cautionBadge) {
    if (item.isInUse()) return runningBadge;
    return item.target.safety == SafetyLevel::caution ? cautionBadge : std::string_view();
}

std::string itemDetail(const CleanupItem& item) {
    auto detail = item.target.detail;
    if (item.isInUse()) detail = "Quit " + item.runningPrograms.front() + " first. " + detail;
    return detail + sharedNote(item.sizeBytes, item.sharedBytes);
}

ItemChipContent itemChip(const CleanupItem& item, std::string_view cautionBadge) {
    return {
        .id = item.target.id,
        .title = item.target.title,
        .detail = itemDetail(item),
        .size = byteText(item.sizeBytes),
        .isOn = item.isSelected,
        .badge = itemBadge(item, cautionBadge),
    };
}

CheckMark checkMark(std::size_t selected, std::size_t count) {
    if (selected == 0) return CheckMark::off;
    return selected == count ? CheckMark::on : CheckMark::mixed;
}

std::string_view symbol(CheckMark mark) {
    switch (mark) {
        case CheckMark::off:
            return "";
        case CheckMark::on:
            return "checkmark";
        case CheckMark::mixed:
            return "minus";
    }
    return {};
}

Tick toggledCategory(std::size_t selected, std::size_t count) {
    return selected != count ? Tick::on : Tick::off;
}

std::string_view symbol(CleanupCategory category) {
    switch (category) {
        case CleanupCategory::developerCaches:
            return "hammer.fill";
        case CleanupCategory::aiCaches:
            return "brain.head.profile";
        case CleanupCategory::appCaches:
            return "app.badge.fill";
        case CleanupCategory::system:
            return "trash.fill";
    }
    return {};
}

ReviewContent reviewContent(const CleanupViewModel& model, std::optional<CleanupCategory> viewing,
                            ByteCount freeBytes) {
    const auto active = model.activeCategories();
    const auto selected = std::ranges::count_if(model.items(), tickedItem);
    const auto selectedBytes = model.selectedBytes();
    ReviewContent content{
        .headline = "Found " + byteText(model.totalBytes()) + " of junk.",
        .categories = {},
        .viewing = categoryInView(active, viewing),
        .chips = {},
        .selectedSize = std::nullopt,
        .pickedLine =
            std::to_string(selected) + " of " + std::to_string(model.items().size()) + " picked",
        .freeAfterLine = byteText(addSaturating(freeBytes, selectedBytes)) + " free after this",
        .leftOutNote = leftOutNote(model.leftOut(), model.servedSystem()),
        .isEmpty = model.items().empty(),
        .canClean = selected > 0,
    };
    if (selected > 0) content.selectedSize = byteText(selectedBytes);
    for (const auto category : active)
        content.categories.push_back(categoryRow(model, category, content.viewing));
    for (const auto& item : model.items())
        if (item.target.category == content.viewing) content.chips.push_back(itemChip(item));
    return content;
}

}  // namespace tidewell
