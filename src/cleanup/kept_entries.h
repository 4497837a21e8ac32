#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"

namespace tidewell {

/// Paths below the home folder that hold keys and credentials. Neither they nor anything below them
/// may ever be deleted.
inline constexpr std::array<std::string_view, 18> protectedHomePaths = {
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

/// The folders of the home folder that hold the user's own files.
inline constexpr std::array<std::string_view, 8> personalFolders = {
    "Documents", "Desktop", "Downloads", "Pictures", "Movies", "Music", "Public", "Sites",
};

/// What must stay on a machine, by the absolute paths under which the user knows it, whether
/// anything stands there or not.
struct KeptEntries {
    std::vector<std::string> personalFolders;  ///< may lose build output, and nothing else
    std::vector<std::string> keys;             ///< with all below them
};

KeptEntries keptEntries(const Host& host);

// These look at the text of a standardised path alone.

/// Whether the path is that of a key, or lies below one.
bool isInKeys(std::string_view path, const KeptEntries& kept);

/// The personal folder at or above a path; null if it lies in none.
const std::string* personalFolderOf(std::string_view path, const KeptEntries& kept);

}  // namespace tidewell
