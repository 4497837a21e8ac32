#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/descriptor_paths.h"
#include "platform/posix/tree_folder.h"

namespace tidewell::posix {

/// Tells whether the folders of a tree still lie where they lay when the tree was entered. A
/// descriptor says which folder it is and not where: one that is moved away meanwhile, or that lies
/// in one that is, would be worked on wherever it lies by then. Any thread.
class Whereabouts {
 public:
    /// The top's absolute path, without links.
    explicit Whereabouts(std::string topPath);

    /// Asks the system. False also where it cannot be told.
    bool isInPlace(const TreeFolder& folder, const OpenFolder& open) const;

    /// How much dearer an answer is than near the top, in removals of a file.
    std::size_t costOf(const TreeFolder& folder) const;

 private:
    bool isTellable(const TreeFolder& folder) const;
    bool isPathOf(std::string_view path, const TreeFolder& folder) const;
    bool isFoundByName(const TreeFolder& folder, OpenFolder open) const;

    const std::string topPath_;
    const DescriptorPaths paths_;
};

}  // namespace tidewell::posix
