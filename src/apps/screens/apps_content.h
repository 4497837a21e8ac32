#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "apps/apps_view_model.h"

namespace tidewell {

// Every word, figure, order and condition of the Apps screen and of the sheet that confirms an
// uninstall. Pure; any thread.

/// A symbol over a line, where there is no list: before the first scan, during a scan, and where
/// none was found, with a title.
struct AppsNotice {
    std::string_view symbol;
    std::string_view title = {};
    std::string_view line;
};

struct SortChoice {
    SortOrder order;
    std::string_view label;
    bool isChosen;

    bool operator==(const SortChoice&) const = default;
};

/// The strip that tells how an uninstall ended.
struct ResultBanner {
    enum class Tone { success, warning };  ///< green, orange

    Tone tone;
    std::string_view symbol;
    std::string title;
    std::string line;
    std::string_view undoLabel = {};  ///< of the button that undoes it; empty if there is none
};

ResultBanner resultBanner(const UninstallResult& result);
ResultBanner putBackBanner(const PutBackResult& result);

/// The mark at a card's foot.
enum class AppMark {
    none,
    helper,  ///< rarely opened by design
    unused,  ///< known not to have been opened for months
};

std::string_view label(AppMark mark);

struct AppCardContent {
    InstalledApp app;  ///< what the trash button is about; its `url` tells cards apart
    std::string line;  ///< the helper note, else when the application was last used
    std::string size;
    std::string footnote;  ///< where kinds differ the kind, else the version
    AppMark mark;
    std::string trashHelp;

    bool operator==(const AppCardContent&) const = default;
};

AppCardContent appCard(const InstalledApp& app, Date now);

struct UninstallRow {
    std::string id;  ///< tells rows apart
    std::string_view symbol;
    std::string title;
    std::string label;
    std::string size;
    bool hasTick = false;  ///< the user chooses whether it goes
    bool isOn = true;      ///< whether it does

    bool operator==(const UninstallRow&) const = default;
};

/// What only the user can do, as the sheet shows it.
struct CommandContent {
    std::string lead;  ///< what the command is for
    std::string command;
    std::string note;     ///< what else it would take along; empty if nothing
    std::string warning;  ///< in red; empty for none
};

struct UninstallSheetContent {
    std::string title;
    std::string line;
    std::vector<UninstallRow> rows;   ///< the application, then its leftovers
    std::string_view emptyNote = {};  ///< stands behind the rows; empty if there are leftovers
    std::string_view footer = "You can undo this from the Trash.";
    std::string_view confirmLabel = "Move to Trash";
    bool canConfirm = true;  ///< whether anything would go
    std::optional<CommandContent> command = std::nullopt;
};

UninstallSheetContent uninstallSheet(const UninstallPlan& plan);

struct AppsContent {
    AppsViewModel::Phase phase;
    std::string subtitle;  ///< under the title; empty at the start, which has no header
    std::optional<AppsNotice> notice;
    double scanProgress;

    // Of the list alone.
    std::vector<SortChoice> sortChoices;
    std::string_view sortLabel;
    std::optional<ResultBanner> banner;
    std::vector<AppCardContent> cards;
    bool isHuntingLeftovers;

    std::optional<UninstallSheetContent> sheet;
};

AppsContent appsContent(const AppsViewModel& model, Date now);

}  // namespace tidewell
