#include "devmode/developer_machine.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/files.h"

namespace tidewell {

namespace {

constexpr std::array<std::string_view, 19> developerPlaces = {
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

bool isDeveloperMachine(const Host& host) {
    return std::ranges::any_of(developerPlaces, [&host](std::string_view place) {
        return fileExists(host.locate(place));
    });
}

}  // namespace tidewell
