#pragma once

#include <array>
#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

#include "cleanup/cleanup_model.h"
#include "platform/host.h"

namespace tidewell {

/// The paths of a catalogue row, as constant data.
class CataloguePaths {
 public:
    static constexpr std::size_t capacity = 12;

    constexpr CataloguePaths() = default;
    constexpr CataloguePaths(std::initializer_list<std::string_view> paths) {
        for (const auto path : paths) stored_.at(count_++) = path;
    }
    constexpr const std::string_view* begin() const { return stored_.data(); }
    constexpr const std::string_view* end() const { return stored_.data() + count_; }
    constexpr std::size_t size() const { return count_; }

 private:
    std::array<std::string_view, capacity> stored_{};
    std::size_t count_ = 0;
};

/// Where a row's paths come from: the table, or the running machine's scratch folders.
enum class PathSource { stored, deletableRoots };

/// A cleanup target as it stands in the catalogue.
struct CatalogueRow {
    std::string_view id;
    std::string_view title;
    std::string_view detail;
    CleanupCategory category;
    CataloguePaths paths = {};
    SafetyLevel safety = SafetyLevel::safe;
    TargetKind kind = TargetKind::plain;
    PathSource source = PathSource::stored;
};

/// The vocabulary of the Clean tool, in the order in which a scan measures it. The words are what
/// the user reads before agreeing to lose a thing.
std::span<const CatalogueRow> catalogueRows();

/// The catalogue on a machine, in the same order.
std::vector<CleanupTarget> cleanupCatalogue(const Host& host);

}  // namespace tidewell
