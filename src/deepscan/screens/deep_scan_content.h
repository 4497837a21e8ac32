#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "deepscan/big_item.h"
#include "deepscan/big_item_scanner.h"
#include "deepscan/deep_scan_view_model.h"
#include "kit/color.h"

namespace tidewell {

// All that the Deep Scan screen says, in which order and under which condition, as plain values.

/// What may be done with an item, as its colour tells: green is safe, red is the user's own. In the
/// order of the rows on the screen.
enum class RiskBucket { safe, installer, container, review, personal, other, inTrash };

inline constexpr std::array allRiskBuckets = {
    RiskBucket::safe,     RiskBucket::installer, RiskBucket::container, RiskBucket::review,
    RiskBucket::personal, RiskBucket::other,     RiskBucket::inTrash,
};

/// Of an item that is still where it was.
RiskBucket riskBucket(BigItem::Kind kind);

struct RiskBucketLook {
    std::string_view title;
    std::string_view symbol;
    Color color;
    std::string_view subtitle;
    Color iconColor;       ///< of the symbol in the bucket's row
    Color iconBackground;  ///< behind it

    bool operator==(const RiskBucketLook&) const = default;
};

RiskBucketLook look(RiskBucket bucket);

/// What is written on an item of this kind.
std::string_view badge(BigItem::Kind kind);

/// Whether the user is asked before an item of this kind goes to the Trash.
bool asksBeforeTrashing(BigItem::Kind kind);

/// How long a copied command's button says so.
inline constexpr std::chrono::seconds copiedDuration{2};

/// How the tool shows what it knows.
enum class DeepScanFace { list, map };

struct FaceChoice {
    DeepScanFace face;
    std::string_view label;
    bool isChosen = false;

    bool operator==(const FaceChoice&) const = default;
};

std::vector<FaceChoice> faceChoices(DeepScanFace chosen);

/// What the screen itself remembers; lost when it is left.
struct DeepScanScreenState {
    DeepScanFace face = DeepScanFace::list;
    std::optional<RiskBucket> viewingBucket;  ///< the first that has some, if this one has none
    std::optional<BigItem> pendingTrash;      ///< awaits the user's answer
    std::set<std::string> copiedItems;  ///< ids of the items whose command was copied just now
};

/// A bucket's row in the rail.
struct RiskRow {
    RiskBucket bucket;
    RiskBucketLook look;
    std::size_t count = 0;
    ByteCount bytes = 0;
    std::string line;  ///< "3 · 1.2 GB"
    bool isViewing = false;

    bool operator==(const RiskRow&) const = default;
};

struct CopyCommandButton {
    std::string command;  ///< what goes to the pasteboard
    std::string_view label;
    std::string help;

    bool operator==(const CopyCommandButton&) const = default;
};

struct PutBackButton {
    TrashedItem item;
    std::string_view label;
    std::string help;

    bool operator==(const PutBackButton&) const = default;
};

struct BigItemCard {
    BigItem item;  ///< of what lies in the Trash, what it is there and where it came from
    std::string_view symbol;
    std::string size;
    std::string_view badge;
    Color badgeColor;  ///< its bucket's
    std::string note;
    std::string_view revealSymbol;
    std::string_view revealHelp;
    std::optional<std::string> trashHelp;          ///< absent: there is no such button
    std::optional<CopyCommandButton> copyCommand;  ///< the same
    std::optional<PutBackButton> putBack = {};     ///< the same

    bool operator==(const BigItemCard&) const = default;
};

/// `copiedItems` as in the screen's state.
BigItemCard bigItemCard(const BigItem& item, const std::set<std::string>& copiedItems,
                        System system);
BigItemCard trashedCard(const TrashedThing& thing, const Host& host, Date now);

/// The cards of a bucket, in the order of the model.
std::vector<BigItemCard> cardsIn(RiskBucket bucket, const DeepScanViewModel& model,
                                 const std::set<std::string>& copiedItems);

struct TrashConfirmation {
    std::string_view title;
    std::string message;
    std::string_view confirmLabel;  ///< destructive
    std::string_view cancelLabel;
};

TrashConfirmation trashConfirmation(const BigItem& item);

struct TrashBanner {
    std::string_view symbol;
    Color color;
    std::string text;
    std::string_view undoLabel =
        {};  ///< of the button that undoes the move; empty if there is none
};

TrashBanner trashBanner(const BigItemScanner::TrashOutcome& outcome, System system);
TrashBanner putBackBanner(const DeepScanViewModel::PutBackOutcome& outcome);

struct DeepScanContent {
    enum class Page {
        start,         ///< header, symbol and the scan button
        scanning,      ///< placard and progress
        nothingFound,  ///< placard and the scan button
        list,          ///< summary, scan button, rail and cards
    };

    /// Words in the middle of an otherwise empty page.
    struct Placard {
        std::string_view symbol;
        std::string_view title;
        std::string_view line;
    };

    Page page = Page::start;
    std::string_view header;
    std::string_view headerLine;  ///< empty: none
    Placard placard;              ///< empty on the list
    double progress = 0;
    std::string_view scanLabel;              ///< empty while scanning: there is no such button
    std::string summary;                     ///< of the list alone, as are the next three
    std::optional<std::string> leftOutNote;  ///< on each page
    std::vector<RiskRow> rail;
    std::string_view bucketSubtitle;
    std::vector<BigItemCard> cards;
    std::optional<TrashConfirmation> confirmation;
    std::optional<TrashBanner> banner;
};

DeepScanContent deepScanContent(const DeepScanViewModel& model, const DeepScanScreenState& state);

/// "3 big items • 12.5 GB"; in words if there are none.
std::string deepScanSummary(const std::vector<BigItem>& items);

}  // namespace tidewell
