#include "deepscan/deep_scan_view_model.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "async/background.h"
#include "deepscan/knowledge/knowledge.h"
#include "platform/path_text.h"
#include "platform/silent_mounts.h"

namespace tidewell {

namespace {

struct Found {
    LeftOut leftOut;
    std::vector<BigItem> items;
    std::vector<TrashedThing> inTrash;
};

struct Returned {
    PuttingBack outcome;
    bool isInTrash = true;
};

/// What somebody else has taken out of the Trash meanwhile is not there to be tried again.
Returned returned(const BigItemScanner& scanner, const TrashedItem& item, const Host& host) {
    Returned end{.outcome = scanner.putBack(item)};
    if (end.outcome.place) return end;
    end.isInTrash = std::ranges::any_of(trashedItems(host), [&item](const TrashedItem& other) {
        return other.path == item.path && other.identity == item.identity;
    });
    return end;
}

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

DeepScanViewModel::DeepScanViewModel(const Host& machine)
    : host{machine},
      listsTrash{deepScanKnowledge(machine.system).trash == TrashInList::listed},
      scanner_(machine),
      installerScanner_(machine),
      containerScanner_(machine) {}

Task<> DeepScanViewModel::scanWith(std::shared_ptr<MeasuredFolders> known) {
    if (phase() == Phase::scanning) co_return;
    const auto before = phase();
    phase = Phase::scanning;
    scanProgress = 0.0;
    lastResult = std::nullopt;
    lastPutBack = std::nullopt;

    try {
        auto scanning = background([walk = scanner_, installers = installerScanner_,
                                    containers = containerScanner_, machine = host,
                                    progress = progressHop(), known] {
            auto silent = findSilentMounts();
            UnreadThings unread;
            auto walked = walk.scan(progress, known.get(), &unread);
            auto foundInstallers = installers.scan(walked);
            auto foundContainers = containers.scan();
            auto merged =
                mergeDeepScan(std::move(walked), std::move(foundInstallers),
                              std::move(foundContainers), containers.walkExclusionPaths());
            return Found{.leftOut = {std::move(silent), unread.count()},
                         .items = std::move(merged),
                         .inTrash = findTrashed(machine, known.get())};
        });
        auto found = co_await scanning;
        leftOut = std::move(found.leftOut);
        items = std::move(found.items);
        inTrash = std::move(found.inTrash);
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
    if (outcome.moved)
        addToTrash({.item = *outcome.moved, .sizeBytes = item.sizeBytes, .was = std::move(item)});
    lastPutBack = std::nullopt;
    lastResult = std::move(outcome);
}

Task<> DeepScanViewModel::putBack(TrashedItem item) {
    auto thing = takeFromTrash(item);
    if (!thing) co_return;
    auto puttingBack = background(
        [scanner = scanner_, item, machine = host] { return returned(scanner, item, machine); });
    Returned failed;
    failed.outcome.problem = "Something went wrong inside the program.";
    auto end = co_await valueOr(puttingBack, failed);
    auto& outcome = end.outcome;
    PutBackOutcome told{.name = thing->name(), .problem = std::move(outcome.problem), .stayed = {}};
    if (!outcome.place && end.isInTrash) {
        addToTrash(std::move(*thing));
        told.stayed = std::move(item);
    } else if (outcome.place && thing->was) {
        items.mutate().push_back(std::move(*thing->was));
        sortBySize(items.mutate());
    }
    lastPutBack = std::move(told);
}

std::optional<TrashedItem> DeepScanViewModel::undoable() const {
    if (lastPutBack()) return lastPutBack()->stayed;
    return lastResult() ? lastResult()->moved : std::nullopt;
}

void DeepScanViewModel::addToTrash(TrashedThing thing) {
    inTrash.mutate().push_back(std::move(thing));
    sortBySize(inTrash.mutate());
}

std::optional<TrashedThing> DeepScanViewModel::takeFromTrash(const TrashedItem& item) {
    auto& things = inTrash.mutate();
    const auto place = std::ranges::find(things, item, &TrashedThing::item);
    if (place == things.end()) return std::nullopt;
    auto thing = std::move(*place);
    things.erase(place);
    return thing;
}

BigItemScanner::Progress DeepScanViewModel::progressHop() {
    return [weak = weak_from_this(), &executor = Executor::main()](double fraction) {
        executor.post([weak, fraction] {
            if (const auto self = weak.lock()) self->scanProgress = fraction;
        });
    };
}

}  // namespace tidewell
