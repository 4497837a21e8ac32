#include "cleanup/cleanup_view_model.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "async/background.h"
#include "cleanup/project_artifacts.h"
#include "cleanup/stored_sums.h"
#include "cleanup/target_catalogue.h"
#include "platform/dates.h"

namespace tidewell {

namespace {

auto isIn(CleanupCategory category) {
    return [category](const CleanupItem& item) { return item.target.category == category; };
}

/// Adds a clean's result to what the program keeps for good.
void storeCleanup(UserDefaults defaults, ByteCount freed, Date at) {
    const std::chrono::duration<double> sinceEpoch = at.time_since_epoch();
    defaults.add(totalFreedBytesKey, freed);
    defaults.setReal(lastCleanupAtKey, sinceEpoch.count());
}

}  // namespace

CleanupViewModel::CleanupViewModel(const Host& host)
    : host_(host), scanner_(host), defaults_(host.configurationDirectory) {
    freeSpaceBefore = scanner_.availableCapacity();
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

TickBinding<CleanupViewModel> CleanupViewModel::selectionBinding(const CleanupItem& item) {
    return {weak_from_this(), item.target.id};
}

void CleanupViewModel::selectAll(Tick tick) {
    setTicks(items.mutate(), tick, everyItem);
}

void CleanupViewModel::setCategory(CleanupCategory category, Tick tick) {
    setTicks(items.mutate(), tick, isIn(category));
}

void CleanupViewModel::selectSafeOnly() {
    tickSafeOnly(items.mutate(), everyItem);
}

void CleanupViewModel::selectSafeOnlyIn(CleanupCategory category) {
    tickSafeOnly(items.mutate(), isIn(category));
}

Task<> CleanupViewModel::startScan() {
    if (phase() == Phase::scanning || phase() == Phase::cleaning) co_return;
    phase = Phase::scanning;
    scanProgress = 0.0;
    items = CleanupItems{};
    freeSpaceBefore = scanner_.availableCapacity();

    auto searching = background([host = host_] { return findProjectArtifacts(host); });
    auto artifacts = co_await searching;
    auto targets = cleanupCatalogue(host_);
    std::ranges::move(artifacts, std::back_inserter(targets));

    MeasuringObserver observer;
    observer.started = [this](const CleanupTarget& target) { currentTarget = target.title; };
    observer.progressed = [this](double part) { scanProgress = part; };
    auto measuring = measureTargets(scanner_, std::move(targets), observer);
    auto found = co_await measuring;
    currentTarget = std::nullopt;
    items = std::move(found);
    phase = Phase::review;
}

Task<> CleanupViewModel::cleanSelected() {
    auto selected = selectedItems();
    if (phase() == Phase::cleaning || selected.empty()) co_return;
    phase = Phase::cleaning;
    cleanProgress = 0.0;
    freeSpaceBefore = scanner_.availableCapacity();
    nextStep_ = CleaningStep::goOn;

    CleaningObserver observer;
    observer.progressed = [this](double part) {
        cleanProgress = part;
        return nextStep_;
    };
    auto cleaning = cleanItems(scanner_, std::move(selected), observer);
    auto outcome = co_await cleaning;
    freedBytes = outcome.freedBytes;
    failedTitles = std::move(outcome.failedTitles);
    freeSpaceAfter = scanner_.availableCapacity();

    auto storing = background([defaults = defaults_, freed = outcome.freedBytes, at = now()] {
        storeCleanup(defaults, freed, at);
        return true;
    });
    co_await storing;
    phase = Phase::done;
}

void CleanupViewModel::reset() {
    items = CleanupItems{};
    scanProgress = 0.0;
    cleanProgress = 0.0;
    freedBytes = 0;
    failedTitles = std::vector<std::string>{};
    freeSpaceBefore = scanner_.availableCapacity();
    phase = Phase::idle;
}

}  // namespace tidewell
