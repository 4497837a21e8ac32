#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "deepscan/place_verdict.h"
#include "platform/byte_count.h"
#include "platform/host.h"
#include "platform/stop.h"

namespace tidewell {

/// One cell of the map.
struct DiskMapNode {
    enum class What {
        folder,
        file,
        smallerItems,  ///< all of its folder that is too small to be told by itself
    };

    std::string
        name;  ///< the last component, any bytes; of the top its path, of smaller items empty
    What what = What::folder;
    ByteCount bytes = 0;      ///< as measure tells
    std::uint64_t count = 1;  ///< how many files and folders smaller items are; may be 0 where the
                              ///< bytes are of files that several entries of the folder share
    bool isUnread = false;    ///< something in it could not be read, and is in no figure
    std::uint32_t parent = 0;
    std::uint32_t firstChild = 0;  ///< children lie side by side, the largest first
    std::uint32_t childCount = 0;
    PlaceVerdict verdict = {};  ///< of smaller items that of their folder
};

/// What a folder holds, as a tree of sizes with what the program knows of each. A value.
class DiskMap {
 public:
    DiskMap() = default;
    /// The top first, then level by level.
    explicit DiskMap(std::vector<DiskMapNode> nodes) : nodes_(std::move(nodes)) {}

    bool isEmpty() const { return nodes_.empty(); }
    std::span<const DiskMapNode> nodes() const { return nodes_; }
    const DiskMapNode& operator[](std::uint32_t node) const { return nodes_[node]; }
    /// Of smaller items that of their folder.
    std::string path(std::uint32_t node) const;
    /// The node of the path, or the innermost that holds it; none outside the map.
    std::optional<std::uint32_t> find(std::string_view path) const;

    /// What was taken out of the picture, and how large it was.
    struct Taken {
        std::uint32_t node = 0;
        std::vector<std::pair<std::uint32_t, ByteCount>> sizes;  ///< of it and all below
    };

    /// Takes a node out of the picture: it and all below it have no bytes then, its folders as much
    /// less, and what stands beside it keeps its order and its number. The top cannot be taken.
    Taken take(std::uint32_t node);
    /// Undoes that, where nothing above it was taken since.
    void putBack(const Taken& taken);

 private:
    void grow(std::uint32_t above, ByteCount bytes);

    std::vector<DiskMapNode> nodes_;
};

/// What each verdict has of a node and all below it, by the parts that are told; in the order of
/// the verdicts. Together they are the node's bytes.
std::array<ByteCount, mapVerdictCount> bytesByVerdict(const DiskMap& map, std::uint32_t node = 0);

struct DiskMapping {
    StopToken stop = {};
    /// Called on several threads, with the bytes met so far.
    std::function<void(ByteCount)> progress = nullptr;
};

/// Measures a folder in one walk and tells what is large in it. Empty if it is missing, a link or
/// no folder, or if it was stopped. Blocks; any thread.
DiskMap mapDisk(const Host& host, const std::string& folder, const DiskMapping& how = {});

}  // namespace tidewell
