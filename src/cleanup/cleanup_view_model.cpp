#include "cleanup/cleanup_view_model.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "async/background.h"
#include "cleanup/stored_sums.h"
#include "cleanup/target_catalogue.h"
#include "platform/dates.h"

namespace tidewell {

namespace {

auto isIn(CleanupCategory category) {
    return [category](const CleanupItem& item) { return item.target.category == category; };
}

/// Adds a clean's result to what the program keeps for good.
UserDefaults::Written storeCleanup(UserDefaults defaults, ByteCount freed, Date at) {
    const std::chrono::duration<double> sinceEpoch = at.time_since_epoch();
    const auto written = defaults.add(totalFreedBytesKey, freed);
    if (written == UserDefaults::Written::yes)
        defaults.setReal(lastCleanupAtKey, sinceEpoch.count());
    return written;
}

}  // namespace

CleanupViewModel::CleanupViewModel(const Host& host)
    : CleaningSession(host), host_(host), defaults_(host.configurationDirectory) {
    freeSpaceBefore = scanner().availableCapacity();
}

CleanupItems CleanupViewModel::itemsIn(CleanupCategory category) const {
    CleanupItems found;
    std::ranges::copy_if(items(), std::back_inserter(found), isIn(category));
    return found;
}

std::vector<CleanupCategory> CleanupViewModel::activeCategories() const {
    std::vector<CleanupCategory> active;
    for (const auto category : allCleanupCategories)
        if (std::ranges::any_of(items(), isIn(category))) active.push_back(category);
    return active;
}

// An item may have very many paths: what is only counted is not copied.

std::size_t CleanupViewModel::countIn(CleanupCategory category) const {
    return static_cast<std::size_t>(std::ranges::count_if(items(), isIn(category)));
}

std::size_t CleanupViewModel::selectedCountIn(CleanupCategory category) const {
    const auto isMeant = [isInIt = isIn(category)](const CleanupItem& item) {
        return item.isSelected && isInIt(item);
    };
    return static_cast<std::size_t>(std::ranges::count_if(items(), isMeant));
}

ByteCount CleanupViewModel::bytesIn(CleanupCategory category) const {
    return tidewell::totalBytes(items(), isIn(category));
}

void CleanupViewModel::setCategory(CleanupCategory category, Tick tick) {
    setTicksTogether(items.mutate(), tick, isIn(category));
}

void CleanupViewModel::selectSafeOnlyIn(CleanupCategory category) {
    tickSafeOnly(items.mutate(), isIn(category));
}

Task<> CleanupViewModel::startScanWith(std::shared_ptr<MeasuredFolders> known) {
    if (isBusy()) co_return;
    beginScan();
    freeSpaceBefore = scanner().availableCapacity();
    try {
        auto found = co_await measured(cleanupCatalogue(host_), std::move(known));
        items = std::move(found);
        phase = Phase::review;
    } catch (...) {
        abandonScan();
        throw;
    }
}

Task<> CleanupViewModel::cleanSelected() {
    if (!canClean()) co_return;
    freeSpaceBefore = scanner().availableCapacity();
    co_await cleanTicked();
    freeSpaceAfter = scanner().availableCapacity();

    const auto store = [defaults = defaults_, at = now()](ByteCount freed) {
        return storeCleanup(defaults, freed, at);
    };
    co_await storeFreed(store);
    phase = Phase::done;
}

void CleanupViewModel::reset() {
    items = CleanupItems{};
    forgetRun();
    freeSpaceBefore = scanner().availableCapacity();
    phase = Phase::idle;
}

}  // namespace tidewell
