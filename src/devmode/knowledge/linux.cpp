#include <array>

#include "devmode/knowledge/knowledge.h"

namespace tidewell {

namespace {

constexpr std::array<std::string_view, 1> extraRows = {"editor-app-caches"};

constexpr auto modelStores = std::to_array<ModelTool>({
    {
        .tool = "Ollama models",
        .detect = {"~/.ollama/models", "/usr/share/ollama/.ollama/models"},
        .measure = {"~/.ollama/models", "/usr/share/ollama/.ollama/models"},
        .note = "Pulled models can be downloaded again, but this can also hold models you built. "
                "Look through them and remove the ones you don't need with `ollama rm`.",
    },
    {
        .tool = "LM Studio models",
        .detect = {"~/.lmstudio/models", "{cache}/lm-studio/models"},
        .measure = {"~/.lmstudio/models", "{cache}/lm-studio/models"},
        .note = "Downloaded model weights, to be had again from the hub. Your saved chats live "
                "elsewhere and are left alone.",
    },
    {
        .tool = "ComfyUI models",
        .detect = {"~/ComfyUI/models"},
        .measure = {"~/ComfyUI/models"},
        .note = "Checkpoints and LoRAs. Public models can be downloaded again, but you may have "
                "trained your own. Look through them before removing any.",
    },
    {
        .tool = "Stable Diffusion WebUI models",
        .detect = {"~/stable-diffusion-webui/models"},
        .measure = {"~/stable-diffusion-webui/models"},
        .note = "Checkpoints and LoRAs of AUTOMATIC1111's WebUI. Public models can be downloaded "
                "again; merges of your own can not.",
    },
    {
        .tool = "Stability Matrix models",
        .detect = {"{data}/StabilityMatrix", "~/StabilityMatrix"},
        .measure = {"{data}/StabilityMatrix/Models", "~/StabilityMatrix/Data/Models"},
        .note = "Models that Stability Matrix shares between its programs. Public models can be "
                "downloaded again; anything you trained is yours.",
    },
});

constexpr auto signs = std::to_array<std::string_view>({
    "~/.npm",        "~/.cargo",      "~/.rustup",
    "~/.gradle",     "~/.m2",         "~/go",
    "~/.nvm",        "~/.pyenv",      "~/.sdkman",
    "~/.vscode",     "{config}/Code", "/home/linuxbrew",
    "~/.ollama",     "~/.lmstudio",   "{cache}/huggingface",
    "{cache}/torch", "~/ComfyUI",     "~/stable-diffusion-webui",
    "~/miniconda3",  "~/anaconda3",   "~/miniforge3",
    "~/.conda",      "~/mambaforge",  "~/micromamba",
});

}  // namespace

DevKnowledge linuxDevKnowledge() {
    return {.extraRows = extraRows, .modelStores = modelStores, .signs = signs};
}

}  // namespace tidewell
