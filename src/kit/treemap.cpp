#include "kit/treemap.h"

#include <algorithm>
#include <queue>

namespace tidewell {

namespace {

struct Area {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    double shorter() const { return std::min(width, height); }
};

double sizeOf(const TreemapNode& node) {
    return node.size > 0 ? node.size : 0;
}

/// Fills an area with rows of cells, each along its shorter side, as long as another cell makes a
/// row's worst cell more square.
class Squarifier {
 public:
    Squarifier(Area area, double pointsPerSize, std::vector<TreemapCell>& cells)
        : left_(area), pointsPerSize_(pointsPerSize), cells_(cells) {}

    void add(std::uint32_t node, double size) {
        const double points = size * pointsPerSize_;
        if (!row_.empty() && worst(sum_ + points, points) > worst(sum_, row_.back().points))
            layRow();
        row_.push_back({node, points});
        sum_ += points;
    }

    void finish() { layRow(); }

 private:
    struct Entry {
        std::uint32_t node;
        double points;
    };

    /// The worst ratio of sides in a row of this sum whose last, and so smallest, cell is this one.
    double worst(double sum, double smallest) const {
        const double thickness = sum / left_.shorter();
        const auto ratio = [thickness](double points) {
            const double length = points / thickness;
            return std::max(length / thickness, thickness / length);
        };
        return std::max(ratio(row_.empty() ? smallest : row_.front().points), ratio(smallest));
    }

    void layRow() {
        if (row_.empty()) return;
        const bool isColumn = left_.width >= left_.height;
        const double thickness =
            std::min(sum_ / left_.shorter(), isColumn ? left_.width : left_.height);
        double along = isColumn ? left_.y : left_.x;
        for (const auto& entry : row_) {
            const double length = entry.points / thickness;
            cells_.push_back(isColumn ? cell(entry.node, left_.x, along, thickness, length)
                                      : cell(entry.node, along, left_.y, length, thickness));
            along += length;
        }
        if (isColumn) {
            left_.x += thickness;
            left_.width -= thickness;
        } else {
            left_.y += thickness;
            left_.height -= thickness;
        }
        row_.clear();
        sum_ = 0;
    }

    static TreemapCell cell(std::uint32_t node, double x, double y, double width, double height) {
        return {.node = node, .x = x, .y = y, .width = width, .height = height};
    }

    Area left_;
    const double pointsPerSize_;
    std::vector<TreemapCell>& cells_;
    std::vector<Entry> row_;
    double sum_ = 0;
};

class Layout {
 public:
    Layout(std::span<const TreemapNode> nodes, const TreemapFrame& frame)
        : nodes_(nodes), frame_(frame) {}

    std::vector<TreemapCell> of(std::uint32_t top) && {
        fill(top, {0, 0, frame_.width, frame_.height});
        while (!open_.empty() && cells_.size() < frame_.mostCells) {
            const auto at = open_.top().cell;
            open_.pop();
            const auto folder = cells_[at];
            const double edge = frame_.padding;
            const auto before = cells_.size();
            fill(folder.node, {folder.x + edge, folder.y + frame_.strip, folder.width - 2 * edge,
                               folder.height - frame_.strip - edge});
            cells_[at].isOpen = cells_.size() > before;
        }
        return std::move(cells_);
    }

 private:
    struct Folder {
        double area;
        std::size_t cell;
        bool operator<(const Folder& other) const {
            return area != other.area ? area < other.area : cell > other.cell;
        }
    };

    void fill(std::uint32_t folder, Area area) {
        const auto& node = nodes_[folder];
        const auto children = nodes_.subspan(node.firstChild, node.childCount);
        double sum = 0;
        for (const auto& child : children) sum += sizeOf(child);
        if (sum <= 0 || area.shorter() <= 0) return;
        std::vector<TreemapCell> laid;
        Squarifier squarifier(area, area.width * area.height / sum, laid);
        for (const auto at : largestFirst(node))
            if (sizeOf(nodes_[at]) > 0) squarifier.add(at, sizeOf(nodes_[at]));
        squarifier.finish();
        for (const auto& cell : laid) take(cell);
    }

    std::vector<std::uint32_t> largestFirst(const TreemapNode& node) const {
        std::vector<std::uint32_t> order;
        for (auto at = node.firstChild; at < node.firstChild + node.childCount; ++at)
            order.push_back(at);
        std::ranges::stable_sort(order, std::ranges::greater{},
                                 [this](std::uint32_t at) { return sizeOf(nodes_[at]); });
        return order;
    }

    void take(const TreemapCell& cell) {
        const double shorter = std::min(cell.width, cell.height);
        if (shorter < frame_.smallest || cells_.size() >= frame_.mostCells) return;
        if (nodes_[cell.node].childCount > 0 && shorter >= frame_.smallestOpen)
            open_.push({cell.width * cell.height, cells_.size()});
        cells_.push_back(cell);
    }

    const std::span<const TreemapNode> nodes_;
    const TreemapFrame& frame_;
    std::vector<TreemapCell> cells_;
    std::priority_queue<Folder> open_;  ///< cells whose content is still to be laid out
};

}  // namespace

std::vector<TreemapCell> treemap(std::span<const TreemapNode> nodes, std::uint32_t top,
                                 const TreemapFrame& frame) {
    if (top >= nodes.size()) return {};
    return Layout(nodes, frame).of(top);
}

}  // namespace tidewell
