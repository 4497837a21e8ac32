#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/cleanup_view_model.h"

namespace tidewell {

// Every word, figure and condition of the review screen, from the view model's values. Pure.

inline constexpr std::string_view nothingToCleanTitle = "Nothing to clean";
inline constexpr std::string_view reviewBadge = "Review";
inline constexpr std::string_view runningBadge = "Running";

/// How a check stands for several ticks.
enum class CheckMark { off, on, mixed };

CheckMark checkMark(std::size_t selected, std::size_t count);
/// The symbol in the check's box; empty for an empty box.
std::string_view symbol(CheckMark mark);
/// What a click on a category's check does: a mixed category becomes full.
Tick toggledCategory(std::size_t selected, std::size_t count);

std::string_view symbol(CleanupCategory category);

struct CategoryRowContent {
    CleanupCategory category;
    std::string_view symbol;
    std::string_view title;
    std::string line;  ///< "1 of 3 · 2.5 GB"
    CheckMark mark;
    std::size_t count;
    std::size_t selectedCount;
    ByteCount bytes;
    bool isViewing;

    bool operator==(const CategoryRowContent&) const = default;
};

struct ItemChipContent {
    std::string id;
    std::string title;
    std::string detail;
    std::string size;
    bool isOn;
    std::string_view badge;  ///< said of what can cost the user something; empty for all else

    bool operator==(const ItemChipContent&) const = default;
};

/// What is said of an item beside its title: that a program works with it, or `cautionBadge` of one
/// that is not safe; empty for all others.
std::string_view itemBadge(const CleanupItem& item, std::string_view cautionBadge);

/// What is to be done first, what the item is and what clearing it means; and, where a tenth or
/// more of it has names elsewhere, how much that is.
std::string itemDetail(const CleanupItem& item);

/// `cautionBadge` is the word for an item that is not safe.
ItemChipContent itemChip(const CleanupItem& item, std::string_view cautionBadge = reviewBadge);

struct ReviewContent {
    std::string headline;  ///< "Found 2.5 GB of junk."
    std::vector<CategoryRowContent> categories;
    std::optional<CleanupCategory> viewing;
    std::vector<ItemChipContent> chips;       ///< of the category in view, largest first
    std::optional<std::string> selectedSize;  ///< absent while nothing is picked
    std::string pickedLine;                   ///< "2 of 5 picked"
    std::string freeAfterLine;                ///< "120 GB free after this"
    std::optional<std::string> leftOutNote = std::nullopt;
    bool isEmpty = false;
    bool canClean = false;
};

/// `viewing` is the category that the user chose to see; one without items falls back to the first
/// that has some. `freeBytes` is the free space as the theme read it last.
ReviewContent reviewContent(const CleanupViewModel& model, std::optional<CleanupCategory> viewing,
                            ByteCount freeBytes);

}  // namespace tidewell
