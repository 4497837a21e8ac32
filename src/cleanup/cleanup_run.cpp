#include "cleanup/cleanup_run.h"

#include <optional>
#include <utility>

#include "async/background.h"

namespace tidewell {

namespace {

double fraction(std::size_t part, std::size_t whole) {
    return static_cast<double>(part) / static_cast<double>(whole);
}

}  // namespace

Task<CleanupItems> measureTargets(DiskScanner scanner, std::vector<CleanupTarget> targets,
                                  MeasuringObserver observer) {
    BackgroundGroup<std::optional<CleanupItem>> measuring;
    auto next = targets.cbegin();
    const auto startNext = [&measuring, &scanner, &next] {
        measuring.start([scanner, target = *next] { return scanner.measure(target); });
        ++next;
    };
    while (next != targets.cend() && measuring.running() < measuringWidth) startNext();

    CleanupItems items;
    std::size_t finished = 0;
    while (measuring.running() > 0) {
        auto item = co_await measuring.next();
        if (item) items.push_back(std::move(*item));
        observer.progressed(fraction(++finished, targets.size()));
        if (next == targets.cend()) continue;
        observer.started(*next);
        startNext();
    }
    sortBySize(items);
    co_return items;
}

Task<CleaningOutcome> cleanItems(DiskScanner scanner, CleanupItems items,
                                 CleaningObserver observer) {
    CleaningOutcome outcome;
    std::size_t finished = 0;
    for (const auto& item : items) {
        auto cleaning = background([scanner, item] { return scanner.clean(item); });
        auto result = co_await cleaning;
        outcome.freedBytes = addSaturating(outcome.freedBytes, result.freedBytes);
        if (result.failedTitle) outcome.failedTitles.push_back(std::move(*result.failedTitle));
        if (observer.progressed(fraction(++finished, items.size())) == CleaningStep::stop) break;
    }
    co_return outcome;
}

}  // namespace tidewell
