#include "cleanup/cleaning_session.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "async/background.h"
#include "cleanup/project_artifacts.h"

namespace tidewell {

namespace {

double fraction(std::size_t part, std::size_t whole) {
    return static_cast<double>(part) / static_cast<double>(whole);
}

}  // namespace

bool TickBinding::get() const {
    const auto session = session_.lock();
    const auto* item = session ? findItem(session->items(), id_) : nullptr;
    return item && item->isSelected;
}

void TickBinding::set(Tick tick) const {
    const auto session = session_.lock();
    if (!session || !findItem(session->items(), id_)) return;
    setTicks(session->items.mutate(), tick,
             [this](const CleanupItem& item) { return item.target.id == id_; });
}

void CleaningSession::beginScan() {
    phase = Phase::scanning;
    scanProgress = 0.0;
    items = CleanupItems{};
    mayBeginItems_ = true;
}

Task<CleanupItems> CleaningSession::measured(std::vector<CleanupTarget> targets) {
    auto searching = background([host = scanner_.host()] { return findProjectArtifacts(host); });
    auto artifacts = co_await searching;
    std::ranges::move(artifacts, std::back_inserter(targets));

    BackgroundGroup<std::optional<CleanupItem>> measuring;
    auto next = targets.cbegin();
    const auto startNext = [this, &measuring, &next] {
        measuring.start([scanner = scanner_, target = *next] { return scanner.measure(target); });
        ++next;
    };
    while (next != targets.cend() && measuring.running() < measuringWidth) startNext();

    CleanupItems found;
    std::size_t finished = 0;
    while (measuring.running() > 0) {
        auto item = co_await measuring.next();
        if (item) found.push_back(std::move(*item));
        scanProgress = fraction(++finished, targets.size());
        if (next == targets.cend()) continue;
        currentTarget = next->title;
        startNext();
    }
    currentTarget = std::nullopt;
    sortBySize(found);
    co_return found;
}

bool CleaningSession::canClean() const {
    return phase() != Phase::cleaning && std::ranges::any_of(items(), &CleanupItem::isSelected);
}

Task<> CleaningSession::cleanTicked() {
    const auto ticked = selectedItems();
    phase = Phase::cleaning;
    cleanProgress = 0.0;
    ByteCount freed = 0;
    std::vector<std::string> failed;
    std::size_t finished = 0;
    for (const auto& item : ticked) {
        if (!mayBeginItems_) break;
        auto cleaning = background([scanner = scanner_, item] { return scanner.clean(item); });
        auto result = co_await cleaning;
        freed = addSaturating(freed, result.freedBytes);
        if (result.failedTitle) failed.push_back(std::move(*result.failedTitle));
        cleanProgress = fraction(++finished, ticked.size());
    }
    freedBytes = freed;
    failedTitles = std::move(failed);
}

void CleaningSession::forgetRun() {
    scanProgress = 0.0;
    cleanProgress = 0.0;
    freedBytes = 0;
    failedTitles = std::vector<std::string>{};
    mayBeginItems_ = true;
}

}  // namespace tidewell
