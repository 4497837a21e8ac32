#include <array>

#include "cleanup/kept_entries/tables.h"

namespace tidewell {

namespace {

constexpr std::array<std::string_view, 18> keys = {
    ".cache/huggingface/token",
    ".cache/huggingface/stored_tokens",
    ".ssh",
    ".aws",
    ".gnupg",
    ".kube",
    ".config/gh",
    ".netrc",
    ".ollama/id_ed25519",
    ".ollama/id_ed25519.pub",
    ".cargo/credentials.toml",
    ".cargo/credentials",
    ".composer/auth.json",
    ".config/composer/auth.json",
    ".gradle/gradle.properties",
    ".docker/config.json",
    ".android/adbkey",
    ".android/debug.keystore",
};

}  // namespace

const KeptKnowledge macOSKeptKnowledge = {
    .keys = keys, .profiles = {}, .neverSwept = {}, .buildOutput = BuildOutput::byName};

}  // namespace tidewell
