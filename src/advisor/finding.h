#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/byte_count.h"

namespace tidewell {

/// How much a finding is worth a look: something to gain, something to know, or something whose
/// cleanup would cost more than it gains.
enum class FindingSeverity { win, notice, warning };

/// Who does what about it: nobody, this program by the platform's own tool, or the user with a
/// command that he copies.
enum class FindingAction { none, run, copy };

/// One thing that the Advisor has found, and told to the end: whoever shows it adds no word.
struct Finding {
    std::string id;  ///< the same at each scan
    std::string_view symbol;
    std::string title;
    std::string detail;                  ///< sentences
    std::optional<ByteCount> sizeBytes;  ///< absent if nobody knows
    FindingSeverity severity = FindingSeverity::win;
    FindingAction action = FindingAction::none;
    std::string_view actionLabel = {};  ///< of its button
    std::string command = {};           ///< what is run or copied, as one would type it
    std::vector<std::vector<std::string>> runs = {};  ///< the same in words, one after the other
    std::string outcome = {};                         ///< told once it has been run

    bool operator==(const Finding&) const = default;
};

}  // namespace tidewell
