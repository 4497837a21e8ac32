#pragma once

#include <optional>
#include <string>
#include <vector>

#include "deepscan/big_item.h"
#include "deepscan/knowledge/knowledge.h"
#include "platform/host.h"

namespace tidewell {

/// What a tool's disks must occupy to be listed.
inline constexpr ByteCount containerMinimumSize = ByteCount{100} * 1024 * 1024;

/// Finds the disks of container and virtual machine tools, which are freed from inside the tool and
/// never trashed. Has no state but the machine that it works on; blocks; any thread but the main
/// one. What cannot be read is passed over.
class ContainerScanner {
 public:
    explicit ContainerScanner(Host host);

    /// At most one item for each tool, largest first; of equal size in the order of the table.
    std::vector<BigItem> scan() const;

    /// Folders that the walk for big items meets too, whole: their room is already told by a tool's
    /// item, or is the tool's own business.
    std::vector<std::string> walkExclusionPaths() const;

 private:
    std::optional<BigItem> find(const ContainerEngine& engine) const;
    std::optional<std::string> firstExisting(const ConstantTexts& paths) const;

    Host host_;
};

}  // namespace tidewell
