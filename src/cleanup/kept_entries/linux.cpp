#include <array>

#include "cleanup/kept_entries/tables.h"

namespace tidewell {

namespace {

constexpr auto keys = std::to_array<std::string_view>({
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
    ".password-store",
    ".pki",
    ".git-credentials",
    ".config/git/credentials",
    ".config/rclone",
    ".config/gcloud",
    ".azure",
    ".config/op",
    ".config/sops",
    ".config/age",
    ".vault-token",
    ".npmrc",
    ".pypirc",
    ".config/pip",
    ".m2/settings.xml",
    ".m2/settings-security.xml",
    ".nuget/NuGet",
    ".terraform.d/credentials.tfrc.json",
    ".local/share/keyrings",
    ".local/share/kwalletd",
    ".local/share/gnupg",
    ".config/keepassxc",
    ".cache/keepassxc",
    // Where a sandbox keeps the same.
    "snap/*/*/.pki",
    "snap/*/*/.config/keepassxc",
    "snap/*/*/.cache/keepassxc",
    ".var/app/*/.pki",
    ".var/app/*/config/keepassxc",
    ".var/app/*/cache/keepassxc",
});

// Native, then in a snap, which has a home folder for each of its revisions and one for all, then
// in a flatpak, which has base folders without a dot.
constexpr auto profiles = std::to_array<std::string_view>({
    ".mozilla",
    ".thunderbird",
    ".librewolf",
    ".config/chromium",
    ".config/google-chrome*",
    ".config/BraveSoftware",
    ".config/microsoft-edge*",
    ".config/vivaldi*",
    ".config/opera*",
    "snap/*/*/.mozilla",
    "snap/*/*/.thunderbird",
    "snap/*/*/.librewolf",
    "snap/*/*/.config/chromium",
    "snap/*/*/.config/google-chrome*",
    "snap/*/*/.config/BraveSoftware",
    "snap/*/*/.config/microsoft-edge*",
    "snap/*/*/.config/vivaldi*",
    "snap/*/*/.config/opera*",
    "snap/chromium/*/chromium",
    ".var/app/*/.mozilla",
    ".var/app/*/.thunderbird",
    ".var/app/*/.librewolf",
    ".var/app/*/config/chromium",
    ".var/app/*/config/google-chrome*",
    ".var/app/*/config/BraveSoftware",
    ".var/app/*/config/microsoft-edge*",
    ".var/app/*/config/vivaldi*",
    ".var/app/*/config/opera*",
});

// Files that were not sent yet, keys, histories, whole environments, models: what programs keep
// among their caches and nobody can make anew.
constexpr auto neverSwept = std::to_array<std::string_view>({
    "rclone",
    "keepassxc",
    "evolution",
    "ibus",
    "obexd",
    "doc",
    "kwin",
    "plasma*",
    "ksycoca*",
    "borg",
    "restic",
    "cliphist",
    "sessions",
    "dconf",
    "gvfs*",
    "flatpak",
    "pypoetry",
    "JetBrains",
    "spotify/Storage",
    "virtualenv",
    "huggingface",
    "torch",
    "lm-studio",
    "whisper",
});

}  // namespace

const KeptKnowledge linuxKeptKnowledge = {.keys = keys,
                                          .profiles = profiles,
                                          .neverSwept = neverSwept,
                                          .buildOutput = BuildOutput::besideMarker};

}  // namespace tidewell
