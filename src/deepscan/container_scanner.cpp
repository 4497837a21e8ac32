#include "deepscan/container_scanner.h"

#include <utility>

#include "deepscan/walk_roots.h"
#include "platform/files.h"
#include "platform/freed_usage.h"

namespace tidewell {

ContainerScanner::ContainerScanner(Host host) : host_(std::move(host)) {}

std::optional<std::string> ContainerScanner::firstExisting(const ConstantTexts& paths) const {
    for (const auto stored : paths) {
        auto path = host_.locate(stored);
        if (fileExists(path)) return path;
    }
    return std::nullopt;
}

std::optional<BigItem> ContainerScanner::find(const ContainerEngine& engine) const {
    if (!firstExisting(engine.detect)) return std::nullopt;
    const auto measured = firstExisting(engine.measure);
    if (!measured) return std::nullopt;
    const auto usage = diskUsage(*measured);
    const auto size = freedUsage(*measured, usage, host_.system).freedBytes;
    if (size < containerMinimumSize) return std::nullopt;
    BigItem item{.id = firstExisting(engine.reveal).value_or(*measured),
                 .name = std::string(engine.name) + " data",
                 .location = "Containers & VMs",
                 .sizeBytes = size,
                 .isDirectory = true,
                 .kind = BigItem::Kind::container,
                 .note = std::string(engine.note),
                 .reclaimCommand = std::nullopt};
    const auto unreadNote = deepScanKnowledge(host_.system).unreadNote;
    if (!usage.unread.isEmpty() && !unreadNote.empty()) *item.note += " " + std::string(unreadNote);
    if (engine.command) item.reclaimCommand = std::string(*engine.command);
    return item;
}

std::vector<BigItem> ContainerScanner::scan() const {
    std::vector<BigItem> items;
    for (const auto& engine : deepScanKnowledge(host_.system).engines)
        if (auto item = find(engine)) items.push_back(std::move(*item));
    sortBySize(items);
    return items;
}

std::vector<std::string> ContainerScanner::walkExclusionPaths() const {
    return walkExclusions(host_);
}

}  // namespace tidewell
