#include "apps/screens/apps_content.h"

#include "apps/helper_note.h"
#include "kit/byte_text.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

using Phase = AppsViewModel::Phase;

/// From this many months on, an application is marked as unused.
constexpr std::int64_t unusedAfterMonths = 3;

std::string joined(const std::vector<std::string>& texts) {
    std::string result;
    for (const auto& text : texts) result += (&text == &texts.front() ? "" : ", ") + text;
    return result;
}

std::string subtitle(const AppsViewModel& model) {
    switch (model.phase()) {
        case Phase::idle:
            return {};
        case Phase::scanning:
            return "Uninstall apps together with their leftover files";
        case Phase::list:
            return std::to_string(model.apps().size()) + " apps · " +
                   byteText(model.totalAppBytes()) + ". Deletes go to the Trash, undo anytime.";
    }
    return {};
}

std::optional<AppsNotice> notice(Phase phase) {
    switch (phase) {
        case Phase::idle:
            return AppsNotice{
                .symbol = "square.grid.2x2.fill",
                .line = "Find apps you never open. Trash first, undo anytime.",
            };
        case Phase::scanning:
            return AppsNotice{.symbol = "magnifyingglass", .line = "Checking your apps…"};
        case Phase::list:
            return std::nullopt;
    }
    return std::nullopt;
}

std::vector<SortChoice> sortChoices(SortOrder chosen) {
    std::vector<SortChoice> choices;
    choices.reserve(allSortOrders.size());
    for (const auto order : allSortOrders)
        choices.push_back({.order = order, .label = rawText(order), .isChosen = order == chosen});
    return choices;
}

AppMark markOf(const InstalledApp& app, Date now) {
    if (helperNote(app.name, app.bundleID)) return AppMark::helper;
    // No record is no proof of no use.
    const bool isUnused = app.lastUsed && monthsIdle(app, now) >= unusedAfterMonths;
    return isUnused ? AppMark::unused : AppMark::none;
}

void fillList(AppsContent& content, const AppsViewModel& model, Date now) {
    content.sortChoices = sortChoices(model.sortOrder());
    content.sortLabel = rawText(model.sortOrder());
    if (model.lastResult()) content.banner = resultBanner(*model.lastResult());
    if (model.lastPutBack()) {
        const auto undoLabel = content.banner ? content.banner->undoLabel : std::string_view();
        content.banner = putBackBanner(*model.lastPutBack());
        content.banner->undoLabel = undoLabel;
    }
    for (const auto& app : sorted(model.apps(), model.sortOrder(), now))
        content.cards.push_back(appCard(app, now));
    content.isHuntingLeftovers = model.isBuildingPlan();
}

/// What moved can be put back, also where not all did.
std::string_view undoLabel(const UninstallResult& result) {
    return result.moved.empty() ? std::string_view() : "Put Back";
}

}  // namespace

ResultBanner resultBanner(const UninstallResult& result) {
    if (!result.failed.empty())
        return {
            .tone = ResultBanner::Tone::warning,
            .symbol = "exclamationmark.triangle.fill",
            .title = result.appName + ": some items couldn't be moved",
            .line = "Couldn't move: " + joined(result.failed),
            .undoLabel = undoLabel(result),
        };
    return {
        .tone = ResultBanner::Tone::success,
        .symbol = "checkmark.circle.fill",
        .title = "Moved " + result.appName + " to the Trash",
        .line = std::to_string(result.movedCount) + " items · " + byteText(result.freedBytes) +
                ". Empty the Trash to lock it in.",
        .undoLabel = undoLabel(result),
    };
}

ResultBanner putBackBanner(const PutBackResult& result) {
    if (!result.failed.empty())
        return {
            .tone = ResultBanner::Tone::warning,
            .symbol = "exclamationmark.triangle.fill",
            .title = result.appName + ": some items stay in the Trash",
            .line = "Couldn't put back: " + joined(result.failed),
        };
    return {
        .tone = ResultBanner::Tone::success,
        .symbol = "checkmark.circle.fill",
        .title = "Put " + result.appName + " back",
        .line = std::to_string(result.places.size()) + " items are where they were.",
    };
}

std::string_view label(AppMark mark) {
    switch (mark) {
        case AppMark::none:
            return {};
        case AppMark::helper:
            return "helper";
        case AppMark::unused:
            return "unused";
    }
    return {};
}

AppCardContent appCard(const InstalledApp& app, Date now) {
    const auto note = helperNote(app.name, app.bundleID);
    return {
        .app = app,
        .line = note ? std::string(*note) : lastUsedLabel(app, now),
        .size = byteText(app.sizeBytes),
        .mark = markOf(app, now),
        .trashHelp = "Uninstall " + app.name,
    };
}

UninstallSheetContent uninstallSheet(const UninstallPlan& plan) {
    UninstallSheetContent sheet{
        .title = "Uninstall " + plan.app.name + "?",
        .line = std::to_string(plan.leftovers.size() + 1) + " items · " +
                byteText(plan.totalBytes()) + " will move to the Trash",
        .rows = {{
            .id = plan.app.url,
            .symbol = "app.fill",
            .title = plan.app.name + ".app",
            .label = "Application",
            .size = byteText(plan.app.sizeBytes),
        }},
        .emptyNote = plan.leftovers.empty() ? "No leftovers. Clean app." : "",
    };
    for (const auto& leftover : plan.leftovers)
        sheet.rows.push_back({
            .id = leftover.url,
            .symbol = "folder.fill",
            .title = std::string(lastPathComponent(leftover.url)),
            .label = leftover.category,
            .size = byteText(leftover.sizeBytes),
        });
    return sheet;
}

AppsContent appsContent(const AppsViewModel& model, Date now) {
    AppsContent content{
        .phase = model.phase(),
        .subtitle = subtitle(model),
        .notice = notice(model.phase()),
        .scanProgress = model.scanProgress(),
        .sortChoices = {},
        .sortLabel = {},
        .banner = {},
        .cards = {},
        .isHuntingLeftovers = false,
        .sheet = {},
    };
    if (model.phase() == Phase::list) fillList(content, model, now);
    if (model.pendingPlan()) content.sheet = uninstallSheet(*model.pendingPlan());
    return content;
}

}  // namespace tidewell
