#include "deepscan/deep_scan_view_model.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "async/background.h"
#include "platform/path_text.h"
#include "platform/silent_mounts.h"

namespace tidewell {

namespace {

struct Found {
    LeftOut leftOut;
    std::vector<BigItem> items;
};

}  // namespace

std::vector<BigItem> mergeDeepScan(std::vector<BigItem> walked, std::vector<BigItem> installers,
                                   std::vector<BigItem> containers,
                                   const std::vector<std::string>& excludedPaths) {
    std::set<std::string> installerIds;
    for (const auto& installer : installers) installerIds.insert(installer.id);
    std::erase_if(walked, [&](const BigItem& item) {
        return installerIds.contains(item.id) ||
               std::ranges::any_of(excludedPaths, [&item](const std::string& excluded) {
                   return isAtOrBelow(item.path(), excluded);
               });
    });
    auto& merged = walked;
    std::ranges::move(installers, std::back_inserter(merged));
    std::ranges::move(containers, std::back_inserter(merged));
    sortBySize(merged);
    return std::move(merged);
}

DeepScanViewModel::DeepScanViewModel(const Host& host)
    : system{host.system}, scanner_(host), installerScanner_(host), containerScanner_(host) {}

Task<> DeepScanViewModel::scanWith(std::shared_ptr<MeasuredFolders> known) {
    if (phase() == Phase::scanning) co_return;
    const auto before = phase();
    phase = Phase::scanning;
    scanProgress = 0.0;
    lastResult = std::nullopt;
    lastPutBack = std::nullopt;

    try {
        auto scanning =
            background([walk = scanner_, installers = installerScanner_,
                        containers = containerScanner_, progress = progressHop(), known] {
                auto silent = findSilentMounts();
                UnreadThings unread;
                auto walked = walk.scan(progress, known.get(), &unread);
                auto foundInstallers = installers.scan(walked);
                auto foundContainers = containers.scan();
                auto merged =
                    mergeDeepScan(std::move(walked), std::move(foundInstallers),
                                  std::move(foundContainers), containers.walkExclusionPaths());
                return Found{.leftOut = {std::move(silent), unread.count()},
                             .items = std::move(merged)};
            });
        auto found = co_await scanning;
        leftOut = std::move(found.leftOut);
        items = std::move(found.items);
        phase = Phase::list;
    } catch (...) {
        phase = before;
        throw;
    }
}

Task<> DeepScanViewModel::trash(BigItem item) {
    auto trashing = background([scanner = scanner_, item] { return scanner.trash(item); });
    BigItemScanner::TrashOutcome failed;
    failed.name = item.name;
    auto outcome = co_await valueOr(trashing, failed);
    if (outcome.success)
        std::erase_if(items.mutate(),
                      [&item](const BigItem& listed) { return listed.id == item.id; });
    lastTrashed_ = std::move(item);
    lastPutBack = std::nullopt;
    lastResult = std::move(outcome);
}

Task<> DeepScanViewModel::putBack() {
    if (!lastResult() || !lastResult()->moved) co_return;
    const auto moved = *lastResult()->moved;
    // A second wish finds nothing to undo.
    lastResult.mutate()->moved.reset();
    const auto item = lastTrashed_;
    auto puttingBack = background([scanner = scanner_, moved] { return scanner.putBack(moved); });
    PuttingBack failed;
    failed.problem = "Something went wrong inside the program.";
    const auto outcome = co_await valueOr(puttingBack, failed);
    if (outcome.place) {
        items.mutate().push_back(item);
        sortBySize(items.mutate());
    } else if (lastResult()) {
        lastResult.mutate()->moved = moved;
    }
    lastPutBack = PutBackOutcome{.name = item.name, .problem = outcome.problem};
}

BigItemScanner::Progress DeepScanViewModel::progressHop() {
    return [weak = weak_from_this(), &executor = Executor::main()](double fraction) {
        executor.post([weak, fraction] {
            if (const auto self = weak.lock()) self->scanProgress = fraction;
        });
    };
}

}  // namespace tidewell
