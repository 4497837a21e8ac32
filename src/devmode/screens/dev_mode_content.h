#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/item_selection.h"
#include "devmode/dev_mode_view_model.h"

namespace tidewell {

// Every word, figure and condition of the Dev Mode screen, from the view model's values. Pure.

inline constexpr std::string_view devScanningLine = "Checking your dev tools and AI apps…";
inline constexpr std::string_view devModelsLine =
    "These mix re-downloadable weights with models you trained and images you made, so Tidewell "
    "never deletes them. Reveal to manage yourself.";
inline constexpr std::string_view devReviewTag = "review";
inline constexpr std::string_view modelsGroupID = "__models__";

/// The group of the rail that an item belongs to, from its target's id and title alone.
std::string_view devGroupOf(const CleanupTarget& target);

/// One technology's items.
struct RailGroup {
    std::string id;
    std::string label;
    std::string symbol;
    CleanupItems items;  ///< largest first
    bool isModels = false;
    std::string line;  ///< "3 · 2.5 GB"
    ByteCount bytes = 0;
    std::size_t count = 0;
};

/// The groups that hold something, in their fixed order; the models, if there are any, come last.
std::vector<RailGroup> devRail(const CleanupItems& items, const std::vector<AIModelStore>& models);

/// The place in the rail of the group to show: the one that the user chose, else the first. Absent
/// for an empty rail.
std::optional<std::size_t> devGroupInView(const std::vector<RailGroup>& rail,
                                          const std::optional<std::string>& viewing);

struct DevReviewContent {
    std::string headline;      ///< "Found 2.5 GB to clear."
    std::string pickedLine;    ///< "3 picked"
    std::string selectedSize;  ///< "2.1 GB"
    bool canClean = false;
    std::optional<std::string> leftOutNote = std::nullopt;
};

DevReviewContent devReviewContent(const DevModeViewModel& model);

/// "Freed 2.1 GB".
std::string devDoneTitle(const DevModeViewModel& model);

}  // namespace tidewell
