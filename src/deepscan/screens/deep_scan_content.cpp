#include "deepscan/screens/deep_scan_content.h"

#include <algorithm>
#include <iterator>

#include "kit/byte_text.h"
#include "kit/left_out.h"
#include "kit/words.h"

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
});

static_assert(bucketRows.size() == allRiskBuckets.size());

constexpr double iconBackgroundOpacity = 0.16;
constexpr Color otherIconColor = whiteAt(0.55);

constexpr std::string_view unknownNote = "No intel on this one. Hit Reveal and check it first.";

std::string quoted(std::string_view text) {
    return "“" + std::string(text) + "”";
}

RiskRow riskRow(RiskBucket bucket, const std::vector<BigItem>& bucketItems, bool isViewing) {
    const auto bytes = totalBytes(bucketItems);
    return {.bucket = bucket,
            .look = look(bucket),
            .count = bucketItems.size(),
            .bytes = bytes,
            .line = std::to_string(bucketItems.size()) + " · " + byteText(bytes),
            .isViewing = isViewing};
}

std::vector<RiskRow> riskRows(const std::vector<BigItem>& items, std::optional<RiskBucket> shown) {
    std::vector<RiskRow> rows;
    for (const auto bucket : allRiskBuckets) {
        const auto bucketItems = itemsIn(bucket, items);
        if (!bucketItems.empty()) rows.push_back(riskRow(bucket, bucketItems, bucket == shown));
    }
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
            return model.items().empty() ? DeepScanContent::Page::nothingFound
                                         : DeepScanContent::Page::list;
    }
    return DeepScanContent::Page::start;
}

void fillList(DeepScanContent& content, const std::vector<BigItem>& items,
              const DeepScanScreenState& state, System system) {
    const auto shown = shownBucket(items, state.viewingBucket);
    content.summary = deepScanSummary(items);
    content.rail = riskRows(items, shown);
    content.bucketSubtitle = look(*shown).subtitle;
    for (const auto& item : itemsIn(*shown, items))
        content.cards.push_back(bigItemCard(item, state.copiedItems, system));
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
                               .title = "No big items over 80 MB",
                               .line = "Nothing big hiding anywhere."};
            content.scanLabel = "Rescan";
            break;
        case DeepScanContent::Page::list:
            content.scanLabel = "Rescan";
            fillList(content, model.items(), state, model.system);
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

RiskBucketLook look(RiskBucket bucket) {
    const auto& row = bucketRows.at(static_cast<std::size_t>(bucket));
    return {.title = row.title,
            .symbol = row.symbol,
            .color = row.color,
            .subtitle = row.subtitle,
            .iconColor = bucket == RiskBucket::other ? otherIconColor : row.color,
            .iconBackground = row.color.withOpacity(iconBackgroundOpacity)};
}

std::vector<BigItem> itemsIn(RiskBucket bucket, const std::vector<BigItem>& items) {
    std::vector<BigItem> found;
    std::ranges::copy_if(items, std::back_inserter(found),
                         [bucket](const BigItem& item) { return riskBucket(item.kind) == bucket; });
    return found;
}

std::optional<RiskBucket> shownBucket(const std::vector<BigItem>& items,
                                      std::optional<RiskBucket> wanted) {
    if (wanted && !itemsIn(*wanted, items).empty()) return wanted;
    for (const auto bucket : allRiskBuckets)
        if (!itemsIn(bucket, items).empty()) return bucket;
    return std::nullopt;
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
                     .note = item.note.value_or(std::string(unknownNote)),
                     .revealSymbol = "magnifyingglass",
                     .revealHelp = wordsOf(system).reveal,
                     .trashHelp = std::nullopt,
                     .copyCommand = copyCommandButton(item, copiedItems)};
    if (isTrashable(item.kind)) card.trashHelp = "Move " + item.name + " to Trash";
    return card;
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
            .undoLabel = outcome.moved ? putBackLabel : std::string_view()};
}

TrashBanner putBackBanner(const DeepScanViewModel::PutBackOutcome& outcome) {
    if (!outcome.problem.empty())
        return {.symbol = "exclamationmark.triangle.fill",
                .color = look(RiskBucket::review).color,
                .text = "Couldn't put " + outcome.name + " back. " + outcome.problem};
    return {.symbol = "checkmark.circle.fill",
            .color = look(RiskBucket::safe).color,
            .text = "Put " + outcome.name + " back where it was."};
}

std::string deepScanSummary(const std::vector<BigItem>& items) {
    return std::to_string(items.size()) + " big items • " + byteText(totalBytes(items));
}

DeepScanContent deepScanContent(const DeepScanViewModel& model, const DeepScanScreenState& state) {
    DeepScanContent content;
    content.page = pageOf(model);
    content.header = "Deep Scan";
    fillPage(content, model, state);
    if (state.pendingTrash) content.confirmation = trashConfirmation(*state.pendingTrash);
    content.leftOutNote = leftOutNote(model.leftOut(), model.system);
    if (model.lastResult()) content.banner = trashBanner(*model.lastResult(), model.system);
    if (model.lastPutBack()) {
        const auto undoLabel = content.banner ? content.banner->undoLabel : std::string_view();
        content.banner = putBackBanner(*model.lastPutBack());
        content.banner->undoLabel = undoLabel;
    }
    return content;
}

}  // namespace tidewell
