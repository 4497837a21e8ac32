#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "apps/apps_view_model.h"

namespace tidewell {

// Every word, figure, order and condition of the Apps screen and of the sheet that confirms an
// uninstall. Pure; any thread.

inline constexpr std::string_view appsTitle = "Apps";
inline constexpr std::string_view scanAppsLabel = "Scan Apps";
inline constexpr std::string_view huntingLeftoversLine = "Hunting leftovers…";
inline constexpr std::string_view sortMenuSymbol = "arrow.up.arrow.down";
inline constexpr std::string_view dismissResultSymbol = "xmark";
inline constexpr std::string_view dismissResultLabel = "Dismiss";
inline constexpr std::string_view trashButtonSymbol = "trash";

/// A symbol over a line, where there is no list: before the first scan and during a scan.
struct AppsNotice {
    std::string_view symbol;
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

    bool operator==(const UninstallRow&) const = default;
};

struct UninstallSheetContent {
    static constexpr std::string_view footerSymbol = "arrow.uturn.backward";
    static constexpr std::string_view footer = "You can undo this from the Trash.";
    static constexpr std::string_view cancelLabel = "Cancel";
    static constexpr std::string_view confirmLabel = "Move to Trash";

    std::string title;
    std::string line;
    std::vector<UninstallRow> rows;  ///< the application, then its leftovers
    std::string_view emptyNote;      ///< stands behind the rows; empty if there are leftovers
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
