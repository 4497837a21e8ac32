#pragma once

#include <span>
#include <string_view>

#include "cleanup/catalogue/constant_texts.h"
#include "cleanup/catalogue/program.h"
#include "cleanup/cleanup_model.h"

namespace tidewell {

using CataloguePaths = ConstantTexts;

/// A product that may be installed in several ways: the folders that it has for itself, one for
/// each way and profile, and what counts in each of them.
struct Product {
    CataloguePaths homes;
    CataloguePaths parts;
};

/// Where a row's paths come from: the table, or the running machine's scratch folders.
enum class PathSource { stored, deletableRoots };

/// A cleanup target as it stands in the catalogue. Its paths are `paths`, and then each part of
/// each product in each of its homes.
struct CatalogueRow {
    std::string_view id;
    std::string_view title;
    std::string_view detail;
    CleanupCategory category;
    CataloguePaths paths = {};
    SafetyLevel safety = SafetyLevel::safe;
    TargetKind kind = TargetKind::plain;
    PathSource source = PathSource::stored;
    std::span<const Product> products = {};
    std::span<const Program> programs = {};  ///< whose work it may be while they run
    PathUsers users = PathUsers::unknown;
    std::string_view devGroup = {};  ///< Dev Mode's group, where its words do not tell
};

/// How a sweep tells what it has to leave alone.
enum class SweepCare {
    byName,     ///< by its name
    byContent,  ///< by what it holds as well: a virtual environment, or something mounted
};

/// What Clean knows of one system's machines.
struct Catalogue {
    std::span<const CatalogueRow> rows;
    /// Entries of swept folders that no sweep takes, beside what nobody may remove there (see
    /// kept_entries.h). A bare name holds in every swept folder; what has slashes is a path. Both
    /// may be patterns.
    std::span<const std::string_view> neverSwept;
    /// Dev Mode's rows alone: large and slow to load again, so never ticked.
    std::span<const CatalogueRow> modelCaches;
    SweepCare sweepCare = SweepCare::byName;
};

constexpr bool idsAreUnique(std::span<const CatalogueRow> rows) {
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (rows[i].id == rows[j].id) return false;
    return true;
}

Catalogue macOSCatalogue();
Catalogue linuxCatalogue();

}  // namespace tidewell
