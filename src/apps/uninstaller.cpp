#include "apps/uninstaller.h"

#include <algorithm>
#include <string_view>

#include "apps/uninstall_guard.h"
#include "platform/path_text.h"
#include "platform/process.h"
#include "platform/removal.h"
#include "platform/running_applications.h"

namespace tidewell {

namespace {

enum class ItemKind { application, leftover, launchAgent };

struct WorkItem {
    std::string path;  ///< as the plan names it
    ByteCount sizeBytes;
    ItemKind kind;
};

/// What goes to the Trash. The application itself does only where it is the program's to move.
std::vector<WorkItem> workList(const UninstallPlan& plan) {
    std::vector<WorkItem> items;
    if (uninstallWay(plan.app.kind) == UninstallWay::trash)
        items.push_back({plan.app.url, plan.app.sizeBytes, ItemKind::application});
    for (const auto& leftover : plan.leftovers) {
        if (!leftover.isSelected) continue;
        const auto kind =
            leftover.category == launchAgentCategory ? ItemKind::launchAgent : ItemKind::leftover;
        items.push_back({leftover.url, leftover.sizeBytes, kind});
    }
    return items;
}

/// What people know the item by, also if the path ends in a slash.
std::string nameOf(std::string_view path) {
    const auto pieces = pathPieces(path);
    return std::string(pieces.empty() ? path : pieces.back());
}

/// The agent may not be loaded, and the tool may be missing: the file goes to the Trash all the
/// same.
void unloadAgent(const std::string& path, const Host& host) {
    (void)runTool(host.toolPath("/bin/launchctl"), {"unload", path}, ToolOutput::discard);
}

Trashing moveItem(const WorkItem& item, const UninstallGuard& guard, const Host& host) {
    const auto approved = guard.approve(item.path);
    if (!approved) return {};
    if (item.kind == ItemKind::launchAgent) unloadAgent(item.path, host);
    return moveToTrash(*approved, host);
}

bool isRunning(const InstalledApp& app, const Host& host) {
    if (app.kind == AppKind::bundle)
        return app.bundleID && isApplicationRunning(host, *app.bundleID);
    const bool isOwn = uninstallWay(app.kind) == UninstallWay::trash;
    return (isOwn && isProgramRunning(app.url)) ||
           std::ranges::any_of(app.entryIds, [&host](const std::string& id) {
               return isApplicationRunning(host, id);
           });
}

/// Flatpak's own uninstall, which leaves the user's data alone. Nothing is known of it but how it
/// ended.
bool runOwnTool(const InstalledApp& app, const Host& host) {
    const auto run = runTool(host.toolPath("/usr/bin/flatpak"),
                             {"uninstall", "--user", "--noninteractive", app.installerName},
                             ToolOutput::discard);
    return run && run->exitStatus == 0;
}

}  // namespace

UninstallResult uninstall(const UninstallPlan& plan, const Host& host) {
    UninstallResult result;
    result.appName = plan.app.name;
    result.way = uninstallWay(plan.app.kind);
    // The application is what goes next, so nothing is gained by asking again later. One that
    // starts in between runs on from the Trash and loses no file.
    if (isRunning(plan.app, host)) {
        result.failed = {plan.app.name + " is still running. Quit it and try again"};
        return result;
    }
    if (result.way == UninstallWay::ownTool) {
        if (!host.mayRemove() || !runOwnTool(plan.app, host)) {
            result.failed = {plan.app.name};
            return result;
        }
        result.appBundleMoved = true;
        result.movedCount = 1;
        result.freedBytes = plan.app.sizeBytes;
    }
    const UninstallGuard guard(host);
    for (const auto& item : workList(plan)) {
        auto trashing = moveItem(item, guard, host);
        if (!trashing.moved) {
            result.failed.push_back(nameOf(item.path));
            continue;
        }
        result.moved.push_back(*std::move(trashing.moved));
        ++result.movedCount;
        result.freedBytes = addSaturating(result.freedBytes, item.sizeBytes);
        if (item.kind == ItemKind::application) result.appBundleMoved = true;
    }
    return result;
}

PutBackResult undoUninstall(const UninstallResult& result, const Host& host) {
    PutBackResult undone;
    undone.appName = result.appName;
    for (const auto& item : result.moved) {
        const auto outcome = putBack(item, host);
        if (outcome.place)
            undone.places.push_back(*outcome.place);
        else
            undone.failed.push_back(item.name + ": " + outcome.problem);
    }
    return undone;
}

}  // namespace tidewell
