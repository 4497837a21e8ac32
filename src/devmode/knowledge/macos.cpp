#include <array>

#include "devmode/knowledge/knowledge.h"

namespace tidewell {

namespace {

constexpr std::array<std::string_view, 3> extraRows = {"editor-app-caches", "claude-app-caches",
                                                       "claude-vm-bundles"};

constexpr auto modelStores = std::to_array<ModelTool>({
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

constexpr std::array<std::string_view, 19> signs = {
    "/Applications/Xcode.app",
    "~/Library/Developer",
    "~/.npm",
    "~/.cargo",
    "~/.gradle",
    "~/.m2",
    "/opt/homebrew",
    "/usr/local/Homebrew",
    "~/.ollama",
    "/Applications/LM Studio.app",
    "~/.lmstudio",
    "~/.cache/huggingface",
    "~/.cache/torch",
    "~/ComfyUI",
    "~/stable-diffusion-webui",
    "~/.diffusionbee",
    "~/miniconda3",
    "~/anaconda3",
    "~/miniforge3",
};

}  // namespace

DevKnowledge macOSDevKnowledge() {
    return {.extraRows = extraRows, .modelStores = modelStores, .signs = signs};
}

}  // namespace tidewell
