#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "advisor/advisor_view_model.h"
#include "platform/files.h"

namespace tidewell {

// The words, figures and conditions of the Advisor's screen. Pure; any thread.

enum class AdvisorControlState { ready, busy, disabled };

/// One runtime on the first card, with its button "Delete…".
struct AdvisorRuntimeRow {
    std::string id;
    std::string name;
    std::string build;
    std::string size;
    std::optional<std::string> lastUsed;  ///< "Last used 3 weeks ago"; absent without a date
    std::string usedBy;
    AdvisorControlState deleteButton = AdvisorControlState::ready;

    bool operator==(const AdvisorRuntimeRow&) const = default;
};

/// A button that acts at once, or puts a command where it can be pasted from. It is never disabled.
struct AdvisorActionButton {
    FindingAction action = FindingAction::run;
    std::string label;
    AdvisorControlState state = AdvisorControlState::ready;

    bool operator==(const AdvisorActionButton&) const = default;
};

/// One finding.
struct AdvisorCard {
    std::string id;
    std::string_view symbol;
    std::string title;
    std::string body;
    std::optional<std::string> size;
    std::string command;     ///< what is run or copied; empty where words tell it
    bool isWarning = false;  ///< its words are in red
    std::vector<AdvisorRuntimeRow> runtimes;
    std::optional<AdvisorActionButton> button;

    bool operator==(const AdvisorCard&) const = default;
};

/// A symbol over words, where there are no cards: the start, the scan, and the all-clear, the only
/// one with a title.
struct AdvisorNotice {
    std::string_view symbol;
    std::string_view title;
    std::string_view line;
};

struct AdvisorContent {
    AdvisorViewModel::Phase phase = AdvisorViewModel::Phase::idle;
    std::string headline;                ///< of the list
    std::optional<std::string> message;  ///< of the list: the strip, until it is dismissed
    std::optional<AdvisorNotice> notice;
    std::vector<AdvisorCard> cards;
};

/// `copied` is the finding whose command was copied just now, if any.
AdvisorContent advisorContent(const AdvisorViewModel& model, Date now,
                              std::string_view copied = {});

/// What is asked before a runtime is deleted.
struct RuntimeDeleteConfirmation {
    std::string message;
};

RuntimeDeleteConfirmation runtimeDeleteConfirmation(const SimRuntime& runtime);

}  // namespace tidewell
