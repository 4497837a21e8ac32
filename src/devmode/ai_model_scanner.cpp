#include "devmode/ai_model_scanner.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "devmode/knowledge/knowledge.h"
#include "platform/files.h"
#include "platform/freed_usage.h"
#include "platform/sum.h"

namespace tidewell {

namespace {

std::optional<std::string> firstThatExists(const ConstantTexts& places, const Host& host) {
    for (const auto place : places) {
        auto path = host.locate(place);
        if (fileExists(path)) return path;
    }
    return std::nullopt;
}

}  // namespace

ByteCount totalBytes(const std::vector<AIModelStore>& stores) {
    return sumOf(stores, &AIModelStore::sizeBytes);
}

AIModelScanner::AIModelScanner(Host host) : host_(std::move(host)) {}

std::vector<AIModelStore> AIModelScanner::scan() const {
    std::vector<AIModelStore> stores;
    for (const auto& engine : devKnowledge(host_.system).modelStores) {
        if (!firstThatExists(engine.detect, host_)) continue;
        auto path = firstThatExists(engine.measure, host_);
        if (!path) continue;
        const auto size = freedUsage(*path, host_.system).freedBytes;
        if (!isWorthShowing(size)) continue;
        stores.push_back({.id = std::move(*path),
                          .tool = std::string(engine.tool),
                          .sizeBytes = size,
                          .note = std::string(engine.note)});
    }
    std::ranges::stable_sort(stores, std::ranges::greater{}, &AIModelStore::sizeBytes);
    return stores;
}

}  // namespace tidewell
