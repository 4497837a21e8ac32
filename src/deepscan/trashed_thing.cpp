#include "deepscan/trashed_thing.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "deepscan/knowledge/knowledge.h"
#include "platform/freed_usage.h"
#include "platform/path_text.h"

namespace tidewell {

std::string TrashedThing::name() const {
    return item.origin ? std::string(lastPathComponent(*item.origin)) : item.name;
}

void sortBySize(std::vector<TrashedThing>& things) {
    std::ranges::stable_sort(things, std::greater<>{}, &TrashedThing::sizeBytes);
}

std::vector<TrashedThing> findTrashed(const Host& host, MeasuredFolders* known) {
    std::vector<TrashedThing> things;
    if (deepScanKnowledge(host.system).trash == TrashInList::none) return things;
    for (auto& item : trashedItems(host)) {
        const auto measured = known ? diskUsage(item.path, *known) : diskUsage(item.path);
        const auto size = freedUsage(item.path, measured, host.system).freedBytes;
        things.push_back({.item = std::move(item), .sizeBytes = size});
    }
    sortBySize(things);
    return things;
}

}  // namespace tidewell
