#pragma once

#include <optional>
#include <string_view>

#include "platform/host.h"

namespace tidewell {

/// What is known about well-known folders: what they hold, and whether losing it hurts. Constant
/// data and one lookup; touches no disk. Any thread. There are no objects of it.
class FolderKnowledge {
 public:
    enum class Verdict {
        keepUserData,     ///< the user's own; counts as personal wherever it lies
        safeToClear,      ///< counts as a cache wherever it lies
        mixed,            ///< settings and sign-ins beside what can be loaded again
        systemRecreated,  ///< the system makes it again
    };

    struct Fact {
        Verdict verdict;
        std::string_view note;  ///< a sentence or two for the user
    };

    /// The fact about a folder: by its name, wherever it lies, or by where it lies, whatever its
    /// name; see the knowledge of the machine's system. Case-sensitive; whole names go before parts
    /// of names, and those before places.
    static std::optional<Fact> fact(std::string_view path, const Host& host);

    FolderKnowledge() = delete;
};

}  // namespace tidewell
