#include "devmode/dev_mode_view_model.h"

#include <algorithm>
#include <utility>

#include "async/background.h"
#include "cleanup/project_artifacts.h"
#include "cleanup/stored_sums.h"
#include "devmode/dev_targets.h"

namespace tidewell {

namespace {

auto isAmong(const DevModeViewModel::TargetIDs& ids) {
    return [&ids](const CleanupItem& item) { return ids.contains(item.target.id); };
}

}  // namespace

DevModeViewModel::DevModeViewModel(const Host& host)
    : host_(host), scanner_(host), aiScanner_(host), defaults_(host.configurationDirectory) {}

TickBinding<DevModeViewModel> DevModeViewModel::binding(const CleanupItem& item) {
    return {weak_from_this(), item.target.id};
}

void DevModeViewModel::setAllSelected(Tick tick) {
    setTicks(items.mutate(), tick, everyItem);
}

void DevModeViewModel::selectSafeOnly() {
    tickSafeOnly(items.mutate(), everyItem);
}

void DevModeViewModel::setSelected(Tick tick, const TargetIDs& ids) {
    setTicks(items.mutate(), tick, isAmong(ids));
}

void DevModeViewModel::selectSafeOnly(const TargetIDs& ids) {
    tickSafeOnly(items.mutate(), isAmong(ids));
}

Task<> DevModeViewModel::scan() {
    if (phase() == Phase::scanning || phase() == Phase::cleaning) co_return;
    phase = Phase::scanning;
    scanProgress = 0.0;
    items = CleanupItems{};
    models = std::vector<AIModelStore>{};
    auto targets = devTargets(host_);

    auto searching = background([host = host_] { return findProjectArtifacts(host); });
    auto artifacts = co_await searching;
    std::ranges::move(artifacts, std::back_inserter(targets));

    MeasuringObserver observer;
    observer.progressed = [this](double part) { scanProgress = part; };
    auto measuring = measureTargets(scanner_, std::move(targets), observer);
    auto found = co_await measuring;

    auto searchingModels = background([scanner = aiScanner_] { return scanner.scan(); });
    auto stores = co_await searchingModels;
    items = std::move(found);
    models = std::move(stores);
    phase = Phase::review;
}

Task<> DevModeViewModel::clean() {
    auto selected = selectedItems();
    if (phase() == Phase::cleaning || selected.empty()) co_return;
    phase = Phase::cleaning;
    cleanProgress = 0.0;
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

    auto storing = background([defaults = defaults_, freed = outcome.freedBytes]() mutable {
        return defaults.add(totalFreedBytesKey, freed);
    });
    co_await storing;
    phase = Phase::done;
}

void DevModeViewModel::reset() {
    scanProgress = 0.0;
    cleanProgress = 0.0;
    freedBytes = 0;
    failedTitles = std::vector<std::string>{};
    phase = Phase::idle;
}

}  // namespace tidewell
