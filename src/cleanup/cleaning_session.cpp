#include "cleanup/cleaning_session.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "async/background.h"
#include "cleanup/project_artifacts.h"
#include "cleanup/running_check.h"
#include "platform/silent_mounts.h"

namespace tidewell {

namespace {

/// What comes before the measuring.
struct Search {
    std::vector<std::string> silentMounts;
    std::vector<CleanupTarget> artifacts;
};

struct Measured {
    std::optional<CleanupItem> item;
    UnreadThings unread;
};

constexpr auto hasPrograms = [](const CleanupItem& item) { return item.target.hasPrograms(); };

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

Task<CleanupItems> CleaningSession::measured(std::vector<CleanupTarget> targets,
                                             std::shared_ptr<MeasuredFolders> known) {
    auto searching = background([host = scanner_.host()] {
        auto silent = findSilentMounts();
        return Search{.silentMounts = std::move(silent), .artifacts = findProjectArtifacts(host)};
    });
    auto search = co_await searching;
    std::ranges::move(search.artifacts, std::back_inserter(targets));

    BackgroundGroup<Measured> measuring;
    auto next = targets.cbegin();
    const auto startNext = [this, &measuring, &next, &known] {
        measuring.start([scanner = scanner_, target = *next, known] {
            Measured measure;
            measure.item = scanner.measure(target, known.get(), &measure.unread);
            return measure;
        });
        ++next;
    };
    while (next != targets.cend() && measuring.running() < measuringWidth) startNext();

    CleanupItems found;
    UnreadThings unread;
    std::size_t finished = 0;
    while (measuring.running() > 0) {
        auto measure = co_await measuring.next();
        unread.add(measure.unread);
        if (measure.item) found.push_back(std::move(*measure.item));
        scanProgress = fraction(++finished, targets.size());
        if (next == targets.cend()) continue;
        currentTarget = next->title;
        startNext();
    }
    currentTarget = std::nullopt;
    leftOut =
        LeftOut{.silentMounts = std::move(search.silentMounts), .unreadFolders = unread.count()};
    sortBySize(found);
    if (std::ranges::any_of(found, hasPrograms)) {
        auto marking = background([items = std::move(found), host = scanner_.host()]() mutable {
            markRunning(items, host);
            return std::move(items);
        });
        found = co_await marking;
    }
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
        const DiskScanner::CleanResult failure{.freedBytes = 0, .failedTitle = item.target.title};
        auto result = co_await valueOr(cleaning, failure);
        freed = addSaturating(freed, result.freedBytes);
        if (result.failedTitle) failed.push_back(std::move(*result.failedTitle));
        cleanProgress = fraction(++finished, ticked.size());
    }
    freedBytes = freed;
    failedTitles = std::move(failed);
}

void CleaningSession::abandonScan() {
    currentTarget = std::nullopt;
    phase = Phase::idle;
}

Task<> CleaningSession::storeFreed(Store store) {
    store_ = std::move(store);
    unstored_ = addSaturating(unstored_, freedBytes());
    co_await tryToStore();
    if (!isSumStored()) spawn(shared_from_this(), &CleaningSession::storeLater);
}

/// The amount is taken out while it is being written, so that two attempts never write it twice.
Task<> CleaningSession::tryToStore() {
    const auto amount = std::exchange(unstored_, 0);
    auto storing = background([store = store_, amount] { return store(amount); });
    const auto written = co_await valueOr(storing, UserDefaults::Written::no);
    if (written == UserDefaults::Written::no) unstored_ = addSaturating(unstored_, amount);
}

Task<> CleaningSession::storeLater() {
    while (!isSumStored()) {
        co_await sleepFor(storingInterval);
        co_await tryToStore();
    }
}

void CleaningSession::forgetRun() {
    scanProgress = 0.0;
    cleanProgress = 0.0;
    freedBytes = 0;
    failedTitles = std::vector<std::string>{};
    mayBeginItems_ = true;
}

}  // namespace tidewell
