#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tidewell {

/// What a treemap is of: a tree in which the children of a node lie side by side.
struct TreemapNode {
    double size = 0;  ///< of all of it; what is below 0 or no number counts as 0
    std::uint32_t firstChild = 0;
    std::uint32_t childCount = 0;
};

/// Lengths are in points.
struct TreemapFrame {
    double width = 0;
    double height = 0;
    double strip = 22;         ///< at the top of an open folder, for its name
    double padding = 3;        ///< around what an open folder holds
    double smallestOpen = 46;  ///< a folder is opened if it is at least this wide and high
    double smallest = 3;       ///< what would be narrower or lower is not drawn
    std::size_t mostCells = 5000;
};

struct TreemapCell {
    std::uint32_t node = 0;
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool isOpen = false;  ///< its children are cells too, below the strip
};

/// Lays out what lies in a node as cells whose areas are as their sizes, as square as can be
/// (Bruls, Huizing and van Wijk, "Squarified Treemaps", 2000), and in those large enough what lies
/// in them, the largest first until there are enough cells. Parents come before their children.
std::vector<TreemapCell> treemap(std::span<const TreemapNode> nodes, std::uint32_t top,
                                 const TreemapFrame& frame);

}  // namespace tidewell
