#include "ground.h"

#include <array>

namespace tidewell::test {

namespace {

// The user's own, at places and under names that resemble what is cleaned.
constexpr auto macOSTreasures = std::to_array<const char*>({
    "~/Documents/Thesis/thesis.tex",
    "~/Documents/Thesis/figures/one.pdf",
    "~/Documents/Thesis/caches/results.csv",
    "~/Documents/Thesis/cache/results.csv",
    "~/Documents/build/my only novel.txt",
    "~/Documents/target/goals 2027.txt",
    "~/Documents/caches/list of caches.txt",
    "~/Pictures/Photos Library.photoslibrary/originals/1.heic",
    "~/Desktop/notes.txt",
    "~/Desktop/build/garden shed.txt",
    "~/Movies/birthday.mov",
    "~/Downloads/invoice.pdf",
    "~/Library/Mail/V10/inbox.mbox",
    "~/Library/Keychains/login.keychain-db",
    "~/Library/Caches/CloudKit/records.db",
    "~/Library/Application Support/AddressBook/people.db",
    "~/Novel/draft.txt",
    "/Users/Shared/family.txt",
});

// "Bilder" is what user-dirs.dirs names.
constexpr auto linuxTreasures = std::to_array<const char*>({
    "~/Documents/Thesis/thesis.tex",
    "~/Documents/Thesis/figures/one.pdf",
    "~/Documents/Thesis/caches/results.csv",
    "~/Documents/Thesis/cache/results.csv",
    "~/Documents/build/my only novel.txt",
    "~/Documents/target/goals 2027.txt",
    "~/Documents/node_modules/list of modules.txt",
    "~/Bilder/build/1.jpg",
    "~/Desktop/notes.txt",
    "~/Videos/birthday.mov",
    "~/Templates/target/letter.odt",
    "~/Downloads/invoice.pdf",
    "~/.config/chromium/Default/Login Data",
    "~/.config/google-chrome/Default/Local Storage/leveldb/1.log",
    "~/.mozilla/firefox/ab.default/logins.json",
    "~/.thunderbird/cd.default/Mail/inbox",
    "~/.var/app/org.mozilla.firefox/.mozilla/firefox/ef.default/places.sqlite",
    "~/.cache/rclone/vfs/remote/still to upload.doc",
    "~/.cache/evolution/mail/outbox",
    "~/.cache/borg/0123/chunks",
    "~/.cache/virtualenv/tools/bin/one",
    "~/.cache/pypoetry/virtualenvs/app/bin/one",
    "~/.cache/JetBrains/IdeaIC2026.1/LocalHistory/changes.storage",
    "~/.cache/spotify/Storage/download",
    "~/.local/share/Steam/steamapps/common/game/data.pak",
    "~/Novel/draft.txt",
    "/home/family.txt",
});

constexpr auto macOSKeys = std::to_array<Key>({
    {".ssh", "/id_ed25519"},
    {".aws", "/credentials"},
    {".gnupg", "/private.key"},
    {".kube", "/config"},
    {".netrc", ""},
    {".config/gh", "/hosts.yml"},
    {".config/composer/auth.json", ""},
    {".composer/auth.json", ""},
    {".cache/huggingface/token", ""},
    {".cache/huggingface/stored_tokens", ""},
    {".ollama/id_ed25519", ""},
    {".ollama/id_ed25519.pub", ""},
    {".cargo/credentials", ""},
    {".cargo/credentials.toml", ""},
    {".gradle/gradle.properties", ""},
    {".docker/config.json", ""},
    {".android/adbkey", ""},
    {".android/debug.keystore", ""},
});

constexpr auto linuxKeys = std::to_array<Key>({
    {".ssh", "/id_ed25519"},
    {".aws", "/credentials"},
    {".gnupg", "/private.key"},
    {".netrc", ""},
    {".config/gh", "/hosts.yml"},
    {".cache/huggingface/token", ""},
    {".cargo/credentials.toml", ""},
    {".gradle/gradle.properties", ""},
    {".android/adbkey", ""},
    {".password-store", "/mail.gpg"},
    {".pki", "/nssdb/key4.db"},
    {".git-credentials", ""},
    {".config/rclone", "/rclone.conf"},
    {".npmrc", ""},
    {".m2/settings.xml", ""},
    {".local/share/keyrings", "/login.keyring"},
    {".config/keepassxc", "/keepassxc.ini"},
    {".cache/keepassxc", "/keepassxc.ini"},
});

constexpr auto macOSOwn = std::to_array<const char*>(
    {"Desktop", "Documents", "Downloads", "Movies", "Music", "Pictures", "Public", "Sites"});
constexpr auto linuxOwn =
    std::to_array<const char*>({"Desktop", "Documents", "Downloads", "Movies", "Music", "Pictures",
                                "Public", "Sites", "Videos", "Templates", "Bilder"});

constexpr auto linuxProfiles = std::to_array<const char*>({
    ".mozilla",
    ".thunderbird",
    ".config/chromium",
    ".config/google-chrome",
    ".config/BraveSoftware",
    ".config/vivaldi",
    ".var/app/org.mozilla.firefox/.mozilla",
    ".var/app/org.chromium.Chromium/config/chromium",
});

constexpr auto linuxProfileCaches = std::to_array<const char*>({
    "Cache",
    "Code Cache",
    "GPUCache",
    "ShaderCache",
    "GrShaderCache",
    "DawnCache",
    "DawnGraphiteCache",
    "DawnWebGPUCache",
    "GraphiteDawnCache",
    "Application Cache",
    "Media Cache",
    "CacheStorage",
    "OptGuideOnDeviceModel",
    "OptGuideOnDeviceClassifierModel",
    "optimization_guide_model_store",
    "screen_ai",
    "component_crx_cache",
});

constexpr auto macOSSwept = std::to_array<const char*>({"~/.cache", "~/Library/Caches"});
constexpr auto linuxSwept =
    std::to_array<const char*>({"~/.cache", "~/.var/app/com.example.one/cache"});

constexpr Ground macOSGround = {.system = System::macOS,
                                .treasures = macOSTreasures,
                                .keys = macOSKeys,
                                .ownFolders = macOSOwn,
                                .profiles = {},
                                .profileCaches = {},
                                .sweptFolders = macOSSwept,
                                .scratch = "/var/folders/zz/ada/T",
                                .trash = "~/.Trash"};

constexpr Ground linuxGround = {.system = System::linux,
                                .treasures = linuxTreasures,
                                .keys = linuxKeys,
                                .ownFolders = linuxOwn,
                                .profiles = linuxProfiles,
                                .profileCaches = linuxProfileCaches,
                                .sweptFolders = linuxSwept,
                                .scratch = "/tmp/ada",
                                .trash = "~/.local/share/Trash/files"};

}  // namespace

const Ground& groundOf(System system) {
    return system == System::linux ? linuxGround : macOSGround;
}

}  // namespace tidewell::test
