#include "apps/app_order.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/collation.h"

namespace tidewell {

namespace {

std::vector<InstalledApp> sortedByIdleness(std::vector<InstalledApp> apps, Date now) {
    // The calendar is asked once for each application, not at each comparison.
    std::vector<std::pair<std::int64_t, InstalledApp>> keyed;
    for (auto& app : apps) {
        const auto months = monthsIdle(app, now);
        keyed.emplace_back(months, std::move(app));
    }
    std::ranges::stable_sort(keyed, [](const auto& left, const auto& right) {
        if (left.first != right.first) return left.first > right.first;
        return left.second.sizeBytes > right.second.sizeBytes;
    });
    std::ranges::transform(keyed, apps.begin(),
                           [](auto& entry) { return std::move(entry.second); });
    return apps;
}

}  // namespace

std::string_view rawText(SortOrder order) {
    switch (order) {
        case SortOrder::leastUsed:
            return "Least used";
        case SortOrder::largest:
            return "Largest";
        case SortOrder::name:
            return "Name";
    }
    return {};
}

std::vector<InstalledApp> sorted(std::vector<InstalledApp> apps, SortOrder order, Date now) {
    switch (order) {
        case SortOrder::leastUsed:
            return sortedByIdleness(std::move(apps), now);
        case SortOrder::largest:
            std::ranges::stable_sort(apps, std::ranges::greater{}, &InstalledApp::sizeBytes);
            break;
        case SortOrder::name:
            std::ranges::stable_sort(apps, [](const auto& left, const auto& right) {
                return compareForPeople(left.name, right.name) < 0;
            });
            break;
    }
    return apps;
}

}  // namespace tidewell
