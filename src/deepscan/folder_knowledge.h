#pragma once

#include <optional>
#include <string_view>

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

    /// The fact about a folder of this name, its last path component alone: where the folder lies
    /// does not matter. Case-sensitive; whole names go before parts of names.
    static std::optional<Fact> fact(std::string_view name);

    FolderKnowledge() = delete;
};

}  // namespace tidewell
