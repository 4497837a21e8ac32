#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "deepscan/disk_map_view_model.h"
#include "kit/color.h"

namespace tidewell {

// All that the map says, as plain values.

struct MapVerdictLook {
    std::string_view title;
    std::string_view symbol;
    Color color;  ///< one of Deep Scan's buckets
};

MapVerdictLook look(MapVerdict verdict);

/// What the map itself remembers.
struct DiskMapScreenState {
    std::uint32_t top = 0;             ///< the folder that is shown
    std::uint32_t hand = 0;            ///< what is to be done something with
    std::optional<MapVerdict> filter;  ///< all others stand back
};

/// A row of the legend: pressing it leaves only such things lit.
struct MapLegendRow {
    MapVerdict verdict;
    MapVerdictLook look;
    std::string size;
    bool isChosen = false;

    bool operator==(const MapLegendRow& other) const {
        return verdict == other.verdict && size == other.size && isChosen == other.isChosen;
    }
};

/// A folder on the way from the home folder to the one that is shown.
struct MapCrumb {
    std::uint32_t node = 0;
    std::string name;
    bool isLast = false;

    bool operator==(const MapCrumb&) const = default;
};

/// All that is said of one thing.
struct MapThing {
    std::string symbol;
    std::string name;
    std::string figure;  ///< "12.4 GB · 31% of Documents"
    MapVerdictLook look;
    std::string sentence;
    std::string_view revealHelp;
    std::string trashHelp;       ///< empty: it may not go there, as a whole
    std::string_view showLabel;  ///< of the button that shows its row; empty if there is none
    RowTool tool = RowTool::none;
};

/// "80 GB in your home folder • 12.4 GB can go"
std::string mapSummary(const DiskMap& map);

/// Of the verdicts that something in the folder has.
std::vector<MapLegendRow> mapLegend(const DiskMap& map, std::uint32_t top,
                                    std::optional<MapVerdict> filter);
std::vector<MapCrumb> mapCrumbs(const DiskMap& map, std::uint32_t top);
MapThing mapThing(const DiskMapViewModel& model, std::uint32_t node);

/// The name under which a node is shown.
std::string shownName(const DiskMap& map, std::uint32_t node);

}  // namespace tidewell
