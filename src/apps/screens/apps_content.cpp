#include "apps/screens/apps_content.h"

#include "apps/helper_note.h"
#include "kit/byte_text.h"
#include "kit/count_text.h"
#include "kit/words.h"
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

std::string appCount(const AppsViewModel& model) {
    const auto count = model.apps().size();
    return model.system == System::macOS ? std::to_string(count) + " apps"
                                         : countText(static_cast<std::int64_t>(count), "app");
}

std::string subtitle(const AppsViewModel& model) {
    switch (model.phase()) {
        case Phase::idle:
            return {};
        case Phase::scanning:
            return "Uninstall apps together with their leftover files";
        case Phase::list:
            return appCount(model) + " · " + byteText(model.totalAppBytes()) + ". " +
                   std::string(wordsOf(model.system).appsPromise);
    }
    return {};
}

std::optional<AppsNotice> notice(const AppsViewModel& model) {
    switch (model.phase()) {
        case Phase::idle:
            return AppsNotice{
                .symbol = "square.grid.2x2.fill",
                .line = "Find apps you never open. Trash first, undo anytime.",
            };
        case Phase::scanning:
            return AppsNotice{.symbol = "magnifyingglass", .line = "Checking your apps…"};
        case Phase::list:
            if (!model.apps().empty()) return std::nullopt;
            return AppsNotice{.symbol = "square.grid.2x2.fill",
                              .title = "No apps here",
                              .line = wordsOf(model.system).noApps};
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

/// Only bundles are known to be helpers.
std::optional<std::string_view> noteOn(const InstalledApp& app) {
    return app.kind == AppKind::bundle ? helperNote(app.name, app.bundleID) : std::nullopt;
}

AppMark markOf(const InstalledApp& app, Date now) {
    if (noteOn(app)) return AppMark::helper;
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

std::string doneTitle(const UninstallResult& result) {
    switch (result.way) {
        case UninstallWay::trash:
            return "Moved " + result.appName + " to the Trash";
        case UninstallWay::ownTool:
            return "Uninstalled " + result.appName;
        case UninstallWay::shownCommand:
            return "Moved what " + result.appName + " kept to the Trash";
    }
    return {};
}

/// What the system's own tool took is gone, and in no Trash.
std::string doneLine(const UninstallResult& result) {
    if (result.way == UninstallWay::ownTool && result.moved.empty())
        return byteText(result.freedBytes) + " freed.";
    return std::to_string(result.movedCount) + " items · " + byteText(result.freedBytes) +
           ". Empty the Trash to lock it in.";
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
        .title = doneTitle(result),
        .line = doneLine(result),
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
    const auto note = noteOn(app);
    return {
        .app = app,
        .line = note ? std::string(*note) : lastUsedLabel(app, now),
        .size = byteText(app.sizeBytes),
        .footnote =
            app.kind == AppKind::bundle ? app.version.value_or("") : std::string(labelOf(app.kind)),
        .mark = markOf(app, now),
        .trashHelp = "Uninstall " + app.name,
    };
}

namespace {

UninstallRow applicationRow(const InstalledApp& app) {
    const bool isBundle = app.kind == AppKind::bundle;
    return {.id = app.url,
            .symbol = "app.fill",
            .title = isBundle ? app.name + ".app" : std::string(lastPathComponent(app.url)),
            .label = std::string(labelOf(app.kind)),
            .size = byteText(app.sizeBytes)};
}

/// On machines where no folder can be told to be an application's for sure, each has a tick.
UninstallRow leftoverRow(const LeftoverFile& leftover, bool hasTick) {
    return {.id = leftover.url,
            .symbol = "folder.fill",
            .title = std::string(lastPathComponent(leftover.url)),
            .label = hasTick ? leftover.category + " in " + std::string(parentPath(leftover.url))
                             : leftover.category,
            .size = byteText(leftover.sizeBytes),
            .hasTick = hasTick,
            .isOn = leftover.isSelected};
}

CommandContent commandContent(const InstalledApp& app, const ShownCommand& command) {
    CommandContent content{
        .lead = "Only an administrator can uninstall it. Run this yourself:",
        .command = command.text,
        .note = {},
        .warning = {},
    };
    if (app.kind == AppKind::flatpakSystem)
        content.lead = "It is installed for everyone on this computer. Run this yourself:";
    if (!command.takesAlong.empty())
        content.note = "This also removes " + joined(command.takesAlong) + ".";
    if (!command.neededByDesktop.empty())
        content.warning = "Don't: your desktop needs " + joined(command.neededByDesktop) +
                          ", and this would take it away.";
    return content;
}

std::string sheetLine(const UninstallPlan& plan) {
    if (plan.command && plan.leftovers.empty()) return "It keeps nothing in your home folder.";
    const auto count = plan.app.kind == AppKind::bundle
                           ? std::to_string(plan.itemCount()) + " items"
                           : countText(plan.itemCount(), "item");
    return count + " · " + byteText(plan.totalBytes()) +
           (uninstallWay(plan.app.kind) == UninstallWay::ownTool ? " will go"
                                                                 : " will move to the Trash");
}

/// What flatpak takes away does not come back from the Trash.
std::string_view sheetFooter(const UninstallPlan& plan) {
    switch (uninstallWay(plan.app.kind)) {
        case UninstallWay::trash:
            return "You can undo this from the Trash.";
        case UninstallWay::ownTool:
            return "Flatpak uninstalls the app. What is ticked goes to the Trash.";
        case UninstallWay::shownCommand:
            return "What is ticked goes to the Trash. The app itself stays.";
    }
    return {};
}

}  // namespace

UninstallSheetContent uninstallSheet(const UninstallPlan& plan) {
    const auto way = uninstallWay(plan.app.kind);
    UninstallSheetContent sheet{
        .title = "Uninstall " + plan.app.name + "?",
        .line = sheetLine(plan),
        .rows = {},
        .emptyNote = plan.leftovers.empty() ? "No leftovers. Clean app." : "",
        .footer = sheetFooter(plan),
        .confirmLabel = way == UninstallWay::ownTool ? "Uninstall" : "Move to Trash",
        .canConfirm = plan.itemCount() > 0,
    };
    if (plan.command)
        sheet.command = commandContent(plan.app, *plan.command);
    else
        sheet.rows.push_back(applicationRow(plan.app));
    for (const auto& leftover : plan.leftovers)
        sheet.rows.push_back(leftoverRow(leftover, plan.app.kind != AppKind::bundle));
    return sheet;
}

AppsContent appsContent(const AppsViewModel& model, Date now) {
    AppsContent content{
        .phase = model.phase(),
        .subtitle = subtitle(model),
        .notice = notice(model),
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
