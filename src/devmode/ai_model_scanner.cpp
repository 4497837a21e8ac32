#include "devmode/ai_model_scanner.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "platform/disk_usage.h"
#include "platform/files.h"
#include "platform/sum.h"

namespace tidewell {

namespace {

/// Places of a tool, as far as it has them; the rest is empty.
using Places = std::array<std::string_view, 3>;

/// A local AI tool: it is there if any of `detect` exists, and keeps its models at the first of
/// `measure` that does.
struct Engine {
    std::string_view tool;
    Places detect;
    Places measure;
    std::string_view note;
};

constexpr auto engines = std::to_array<Engine>({
    {
        .tool = "Ollama models",
        .detect = {"/Applications/Ollama.app", "~/.ollama/models"},
        .measure = {"~/.ollama/models"},
        .note =
            "Pulled models are re-downloadable, but this can also hold models you built. Review "
            "and remove the ones you don't need.",
    },
    {
        .tool = "LM Studio models",
        .detect = {"/Applications/LM Studio.app", "~/.lmstudio/models"},
        .measure = {"~/.lmstudio/models", "~/.cache/lm-studio/models"},
        .note = "Downloaded model weights, re-downloadable from the hub. Your saved chats live "
                "elsewhere and are left alone.",
    },
    {
        .tool = "DiffusionBee models",
        .detect = {"/Applications/DiffusionBee.app", "~/.diffusionbee/downloads"},
        .measure = {"~/.diffusionbee/downloads"},
        .note = "Stable Diffusion model files. Your generated images are kept separate and never "
                "touched here.",
    },
    {
        .tool = "Draw Things models",
        .detect = {"~/Library/Containers/com.liuliu.draw-things"},
        .measure = {"~/Library/Containers/com.liuliu.draw-things/Data/Documents/Models"},
        .note = "Stable Diffusion models. Some are re-downloadable, some you may have imported. "
                "Review before removing.",
    },
    {
        .tool = "ComfyUI models",
        .detect = {"~/ComfyUI/models", "/Applications/ComfyUI.app"},
        .measure = {"~/ComfyUI/models"},
        .note = "Checkpoints and LoRAs. Public models re-download, but you may have trained your "
                "own. Review before removing.",
    },
    {
        .tool = "Stable Diffusion WebUI models",
        .detect = {"~/stable-diffusion-webui/models"},
        .measure = {"~/stable-diffusion-webui/models"},
        .note = "AUTOMATIC1111 checkpoints and LoRAs. Public models re-download; custom merges are "
                "yours. Review before removing.",
    },
    {
        .tool = "Stability Matrix models",
        .detect = {"/Applications/Stability Matrix.app",
                   "~/Library/Application Support/StabilityMatrix", "~/StabilityMatrix"},
        .measure = {"~/Library/Application Support/StabilityMatrix/Models",
                    "~/StabilityMatrix/Data/Models"},
        .note = "Shared Stable Diffusion models managed by Stability Matrix. Public models "
                "re-download; anything you trained is yours. Review before removing.",
    },
});

std::optional<std::string> firstThatExists(const Places& places, const Host& host) {
    for (const auto place : places) {
        if (place.empty()) break;
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
    for (const auto& engine : engines) {
        if (!firstThatExists(engine.detect, host_)) continue;
        auto path = firstThatExists(engine.measure, host_);
        if (!path) continue;
        const auto size = allocatedSize(*path);
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
