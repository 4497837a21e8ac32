#include "deepscan/screens/deep_scan_content.h"

#include <algorithm>
#include <iterator>

#include "kit/byte_text.h"
#include "kit/left_out.h"
#include "kit/shared_note.h"
#include "kit/words.h"
#include "platform/dates.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::string_view putBackLabel = "Put Back";

struct BucketRow {
    std::string_view title;
    std::string_view symbol;
    Color color;
    std::string_view subtitle;
};

/// In the order of the buckets.
constexpr auto bucketRows = std::to_array<BucketRow>({
    {"Safe to clear",
     "checkmark.circle.fill",
     {0.2, 0.84, 0.51},
     "Rebuildable caches and files. Clearing these is safe."},
    {"Installers",
     "shippingbox.fill",
     {0.36, 0.66, 0.98},
     "Disk images and installers you've downloaded. Safe to trash once the app is installed."},
    {"Containers & VMs",
     "cube.box.fill",
     {0.6, 0.5, 0.98},
     "Space used by Docker, OrbStack and other container tools. These hold your images and "
     "volumes, so reclaim from inside the tool, never by deleting here."},
    {"Check first",
     "exclamationmark.circle.fill",
     {0.98, 0.62, 0.24},
     "App data. Logins or settings may live here, so look before removing."},
    {"Your stuff",
     "hand.raised.fill",
     {0.96, 0.26, 0.37},
     "Looks like your own files. Reveal and check before trashing."},
    {"Other", "questionmark.circle.fill", secondaryColor,
     "Unsorted big items. Reveal each to see what it is."},
    {"In the Trash",
     "trash",
     {0.56, 0.66, 0.82},
     "Takes up room until the Trash is emptied. Until then, it can go back where it was."},
});

static_assert(bucketRows.size() == allRiskBuckets.size());

constexpr double iconBackgroundOpacity = 0.16;
constexpr Color otherIconColor = whiteAt(0.55);

constexpr std::string_view nothingBig = "No big items over 80 MB";

constexpr std::string_view unknownNote = "No intel on this one. Hit Reveal and check it first.";

std::string_view undoLabel(const std::optional<TrashedItem>& undoable) {
    return undoable ? putBackLabel : std::string_view();
}

std::string quoted(std::string_view text) {
    return "“" + std::string(text) + "”";
}

bool isShownIn(RiskBucket bucket, const BigItem& item) {
    return riskBucket(item.kind) == bucket;
}

bool isShownIn(RiskBucket bucket, const TrashedThing&) {
    return bucket == RiskBucket::inTrash;
}

void count(RiskRow& row, const auto& things) {
    for (const auto& thing : things) {
        if (!isShownIn(row.bucket, thing)) continue;
        ++row.count;
        row.bytes = addSaturating(row.bytes, thing.sizeBytes);
    }
}

bool showsTrash(const DeepScanViewModel& model) {
    return model.listsTrash && !model.inTrash().empty();
}

std::vector<RiskRow> riskRows(const DeepScanViewModel& model, std::optional<RiskBucket> wanted) {
    std::vector<RiskRow> rows;
    for (const auto bucket : allRiskBuckets) {
        RiskRow row{.bucket = bucket, .look = look(bucket), .line = {}};
        count(row, model.items());
        if (showsTrash(model)) count(row, model.inTrash());
        row.line = std::to_string(row.count) + " · " + byteText(row.bytes);
        if (row.count > 0) rows.push_back(std::move(row));
    }
    const auto found = std::ranges::find(rows, wanted, &RiskRow::bucket);
    if (!rows.empty()) (found == rows.end() ? rows.front() : *found).isViewing = true;
    return rows;
}

std::optional<CopyCommandButton> copyCommandButton(const BigItem& item,
                                                   const std::set<std::string>& copiedItems) {
    if (!item.reclaimCommand) return std::nullopt;
    return CopyCommandButton{
        .command = *item.reclaimCommand,
        .label = copiedItems.contains(item.id) ? "Copied" : "Copy command",
        .help = "Copy " + quoted(*item.reclaimCommand) + " to run in Terminal",
    };
}

DeepScanContent::Page pageOf(const DeepScanViewModel& model) {
    switch (model.phase()) {
        case DeepScanViewModel::Phase::idle:
            return DeepScanContent::Page::start;
        case DeepScanViewModel::Phase::scanning:
            return DeepScanContent::Page::scanning;
        case DeepScanViewModel::Phase::list:
            return model.items().empty() && !showsTrash(model) ? DeepScanContent::Page::nothingFound
                                                               : DeepScanContent::Page::list;
    }
    return DeepScanContent::Page::start;
}

void fillList(DeepScanContent& content, const DeepScanViewModel& model,
              const DeepScanScreenState& state) {
    content.summary = deepScanSummary(model.items());
    content.rail = riskRows(model, state.viewingBucket);
    const auto shown = std::ranges::find(content.rail, true, &RiskRow::isViewing);
    content.bucketSubtitle = shown->look.subtitle;
    content.cards = cardsIn(shown->bucket, model, state.copiedItems);
}

void fillPage(DeepScanContent& content, const DeepScanViewModel& model,
              const DeepScanScreenState& state) {
    switch (content.page) {
        case DeepScanContent::Page::start:
            content.headerLine = "Finds what's actually big. Green is safe, red is your stuff.";
            content.placard.symbol = "scope";
            content.scanLabel = "Deep Scan";
            break;
        case DeepScanContent::Page::scanning:
            content.headerLine = "Looking through your home folder";
            content.placard = {.symbol = "scope",
                               .title = "Hunting for big items…",
                               .line = "Sizing everything up…"};
            content.progress = model.scanProgress();
            break;
        case DeepScanContent::Page::nothingFound:
            content.placard = {.symbol = "checkmark.seal.fill",
                               .title = nothingBig,
                               .line = "Nothing big hiding anywhere."};
            content.scanLabel = "Rescan";
            break;
        case DeepScanContent::Page::list:
            content.scanLabel = "Rescan";
            fillList(content, model, state);
            break;
    }
}

}  // namespace

RiskBucket riskBucket(BigItem::Kind kind) {
    switch (kind) {
        case BigItem::Kind::cache:
        case BigItem::Kind::rebuildable:
            return RiskBucket::safe;
        case BigItem::Kind::installer:
            return RiskBucket::installer;
        case BigItem::Kind::container:
            return RiskBucket::container;
        case BigItem::Kind::appData:
            return RiskBucket::review;
        case BigItem::Kind::personal:
            return RiskBucket::personal;
        case BigItem::Kind::other:
            return RiskBucket::other;
    }
    return RiskBucket::other;
}

std::vector<FaceChoice> faceChoices(DeepScanFace chosen) {
    return {{DeepScanFace::list, "List", chosen == DeepScanFace::list},
            {DeepScanFace::map, "Map", chosen == DeepScanFace::map}};
}

RiskBucketLook look(RiskBucket bucket) {
    const auto& row = bucketRows.at(static_cast<std::size_t>(bucket));
    return {.title = row.title,
            .symbol = row.symbol,
            .color = row.color,
            .subtitle = row.subtitle,
            .iconColor = bucket == RiskBucket::other ? otherIconColor : row.color,
            .iconBackground = row.color.withOpacity(iconBackgroundOpacity)};
}

std::string_view badge(BigItem::Kind kind) {
    switch (kind) {
        case BigItem::Kind::container:
            return "Reclaim inside the tool";
        case BigItem::Kind::installer:
            return "Installer · safe to remove";
        case BigItem::Kind::cache:
            return "Cache · safe to clear";
        case BigItem::Kind::rebuildable:
            return "Rebuildable · safe";
        case BigItem::Kind::appData:
            return "App / SDK data · review";
        case BigItem::Kind::personal:
            return "Personal · review carefully";
        case BigItem::Kind::other:
            return "Review";
    }
    return "Review";
}

bool asksBeforeTrashing(BigItem::Kind kind) {
    return kind == BigItem::Kind::appData || kind == BigItem::Kind::personal;
}

BigItemCard bigItemCard(const BigItem& item, const std::set<std::string>& copiedItems,
                        System system) {
    BigItemCard card{.item = item,
                     .symbol = item.isDirectory ? "folder.fill" : "doc.fill",
                     .size = byteText(item.sizeBytes),
                     .badge = badge(item.kind),
                     .badgeColor = look(riskBucket(item.kind)).color,
                     .note = item.note.value_or(std::string(unknownNote)) +
                             sharedNote(item.sizeBytes, item.sharedBytes),
                     .revealSymbol = "magnifyingglass",
                     .revealHelp = wordsOf(system).reveal,
                     .trashHelp = std::nullopt,
                     .copyCommand = copyCommandButton(item, copiedItems)};
    if (isTrashable(item.kind)) card.trashHelp = "Move " + item.name + " to Trash";
    return card;
}

BigItemCard trashedCard(const TrashedThing& thing, const Host& host, Date now) {
    const auto& item = thing.item;
    BigItem shown{.id = item.path,
                  .name = thing.name(),
                  .location = {},
                  .sizeBytes = thing.sizeBytes,
                  .isDirectory = item.isFolder,
                  .note = std::nullopt,
                  .reclaimCommand = std::nullopt};
    if (item.origin) shown.location = host.relativeToHome(parentPath(*item.origin));
    auto card = bigItemCard(shown, {}, host.system);
    card.badge = look(RiskBucket::inTrash).title;
    card.badgeColor = look(RiskBucket::inTrash).color;
    card.trashHelp.reset();
    card.note = "Moved to the Trash";
    if (item.deletedAt) card.note += " " + relativeDateInWords(*item.deletedAt, now);
    card.note += ".";
    if (item.origin) {
        card.putBack = PutBackButton{.item = item,
                                     .label = putBackLabel,
                                     .help = "Put " + shown.name + " back where it was"};
    } else {
        card.note += " It is not known where it came from: move it back by hand.";
    }
    return card;
}

std::vector<BigItemCard> cardsIn(RiskBucket bucket, const DeepScanViewModel& model,
                                 const std::set<std::string>& copiedItems) {
    std::vector<BigItemCard> cards;
    for (const auto& item : model.items())
        if (isShownIn(bucket, item))
            cards.push_back(bigItemCard(item, copiedItems, model.host.system));
    if (showsTrash(model) && bucket == RiskBucket::inTrash)
        for (const auto& thing : model.inTrash())
            cards.push_back(trashedCard(thing, model.host, now()));
    return cards;
}

TrashConfirmation trashConfirmation(const BigItem& item) {
    const std::string_view warning =
        item.kind == BigItem::Kind::appData
            ? " holds app data. Logins or settings could go with it. It'll sit in the Trash if you "
              "change your mind."
            : " looks like your personal stuff. It'll sit in the Trash so you can bring it back.";
    return {
        .title = "Move to Trash?",
        .message = quoted(item.name) + " (" + byteText(item.sizeBytes) + ")" + std::string(warning),
        .confirmLabel = "Move to Trash",
        .cancelLabel = "Cancel"};
}

TrashBanner trashBanner(const BigItemScanner::TrashOutcome& outcome, System system) {
    if (!outcome.success)
        return {.symbol = "exclamationmark.triangle.fill",
                .color = look(RiskBucket::review).color,
                .text = "Couldn't move " + outcome.name + ". " +
                        std::string(wordsOf(system).notMovedAdvice)};
    return {.symbol = "checkmark.circle.fill",
            .color = look(RiskBucket::safe).color,
            .text = "Moved " + outcome.name + " to the Trash • " + byteText(outcome.freedBytes) +
                    ". Empty the Trash to lock it in.",
            .undoLabel = undoLabel(outcome.moved)};
}

TrashBanner putBackBanner(const DeepScanViewModel::PutBackOutcome& outcome) {
    if (!outcome.problem.empty())
        return {.symbol = "exclamationmark.triangle.fill",
                .color = look(RiskBucket::review).color,
                .text = "Couldn't put " + outcome.name + " back. " + outcome.problem,
                .undoLabel = undoLabel(outcome.stayed)};
    return {.symbol = "checkmark.circle.fill",
            .color = look(RiskBucket::safe).color,
            .text = "Put " + outcome.name + " back where it was."};
}

std::string deepScanSummary(const std::vector<BigItem>& items) {
    if (items.empty()) return std::string(nothingBig);
    return std::to_string(items.size()) + " big items • " + byteText(totalBytes(items));
}

DeepScanContent deepScanContent(const DeepScanViewModel& model, const DeepScanScreenState& state) {
    DeepScanContent content;
    content.page = pageOf(model);
    content.header = "Deep Scan";
    fillPage(content, model, state);
    if (state.pendingTrash) content.confirmation = trashConfirmation(*state.pendingTrash);
    content.leftOutNote = leftOutNote(model.leftOut(), model.host.system);
    if (model.lastResult()) content.banner = trashBanner(*model.lastResult(), model.host.system);
    if (model.lastPutBack()) content.banner = putBackBanner(*model.lastPutBack());
    return content;
}

}  // namespace tidewell
