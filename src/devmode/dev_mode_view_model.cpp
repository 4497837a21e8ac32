#include "devmode/dev_mode_view_model.h"

#include <utility>

#include "async/background.h"
#include "cleanup/stored_sums.h"
#include "devmode/dev_targets.h"

namespace tidewell {

namespace {

auto isAmong(const DevModeViewModel::TargetIDs& ids) {
    return [&ids](const CleanupItem& item) { return ids.contains(item.target.id); };
}

}  // namespace

DevModeViewModel::DevModeViewModel(const Host& host)
    : CleaningSession(host),
      host_(host),
      aiScanner_(host),
      defaults_(host.configurationDirectory) {}

void DevModeViewModel::setSelected(Tick tick, const TargetIDs& ids) {
    setTicksTogether(items.mutate(), tick, isAmong(ids));
}

void DevModeViewModel::selectSafeOnly(const TargetIDs& ids) {
    tickSafeOnly(items.mutate(), isAmong(ids));
}

Task<> DevModeViewModel::scan() {
    if (isBusy()) co_return;
    beginScan();
    models = std::vector<AIModelStore>{};
    try {
        auto found = co_await measured(devTargets(host_), nullptr);
        auto searchingModels = background([scanner = aiScanner_] { return scanner.scan(); });
        auto stores = co_await searchingModels;
        items = std::move(found);
        models = std::move(stores);
        phase = Phase::review;
    } catch (...) {
        abandonScan();
        throw;
    }
}

Task<> DevModeViewModel::clean() {
    if (!canClean()) co_return;
    co_await cleanTicked();
    const auto store = [defaults = defaults_](ByteCount freed) mutable {
        return defaults.add(totalFreedBytesKey, freed);
    };
    co_await storeFreed(store);
    phase = Phase::done;
}

void DevModeViewModel::reset() {
    forgetRun();
    phase = Phase::idle;
}

}  // namespace tidewell
