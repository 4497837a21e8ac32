#include "apps/installed_app.h"

#include <algorithm>
#include <array>
#include <limits>

#include "platform/dates.h"

namespace tidewell {

namespace {

struct KindFacts {
    AppKind kind;
    std::string_view name;
    std::string_view label;
    UninstallWay way;
};

constexpr std::array kinds = {
    KindFacts{AppKind::bundle, "", "Application", UninstallWay::trash},
    KindFacts{AppKind::appImage, "appimage", "AppImage", UninstallWay::trash},
    KindFacts{AppKind::local, "local", "Program of your own", UninstallWay::trash},
    KindFacts{AppKind::flatpakUser, "flatpak-user", "Flatpak of yours", UninstallWay::ownTool},
    KindFacts{AppKind::flatpakSystem, "flatpak-system", "Flatpak", UninstallWay::shownCommand},
    KindFacts{AppKind::snap, "snap", "Snap", UninstallWay::shownCommand},
    KindFacts{AppKind::package, "package", "Package", UninstallWay::shownCommand},
};

const KindFacts& factsOf(AppKind kind) {
    return *std::ranges::find(kinds, kind, &KindFacts::kind);
}

}  // namespace

std::string_view nameOf(AppKind kind) {
    return factsOf(kind).name;
}

std::string_view labelOf(AppKind kind) {
    return factsOf(kind).label;
}

UninstallWay uninstallWay(AppKind kind) {
    return factsOf(kind).way;
}

std::string lastUsedLabel(const InstalledApp& app, Date now) {
    if (!app.lastUsed) return "No recent use on record";
    return "Used " + relativeDate(*app.lastUsed, now);
}

std::int64_t monthsIdle(const InstalledApp& app, Date now) {
    constexpr std::int64_t daysInMonth = 30;
    if (!app.lastUsed) return std::numeric_limits<std::int64_t>::max();
    return std::max<std::int64_t>(wholeDaysBetween(*app.lastUsed, now) / daysInMonth, 0);
}

}  // namespace tidewell
