#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/byte_count.h"
#include "platform/files.h"

namespace tidewell {

/// One installed Simulator runtime, as the platform's own tool describes it.
struct SimRuntime {
    std::string id;           ///< what the tool takes to delete it
    std::string name;         ///< an operating system and its version
    std::string build;        ///< empty if unknown
    ByteCount sizeBytes = 0;  ///< the tool's own figure, never measured here
    bool deletable = true;    ///< false for a runtime that the tool won't delete
    std::optional<Date> lastUsed;
    std::vector<std::string> deviceNames;  ///< the simulators that use it

    /// "Used by 5 simulators: iPhone 15, iPhone 15 Pro, iPad Air +2 more".
    std::string usedByLabel() const;
};

}  // namespace tidewell
