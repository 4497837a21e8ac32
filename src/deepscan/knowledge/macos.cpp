#include <array>

#include "cleanup/cleanup_model.h"
#include "deepscan/knowledge/knowledge.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

using Verdict = FolderKnowledge::Verdict;

constexpr auto knownNames = std::to_array<KnownFolder>({
    {"Google",
     {Verdict::mixed,
      "Chrome's profile: logins, saved passwords, bookmarks, extensions. Don't delete. The Caches "
      "tab safely clears its re-downloadable components instead."}},
    {"Firefox",
     {Verdict::mixed,
      "Firefox profile: logins, bookmarks, history. Don't delete. Clear its cache from the Caches "
      "tab instead."}},
    {"Claude",
     {Verdict::mixed,
      "Claude app sign-in and settings, plus large re-downloadable VM images. Clear the VM images "
      "from the Caches tab instead."}},
    {"Spotify",
     {Verdict::mixed,
      "Spotify sign-in and offline downloads. Deleting logs you out; clear its streaming cache "
      "from the Caches tab instead."}},
    {"Figma",
     {Verdict::mixed,
      "Figma sign-in and offline files. Deleting logs you out and can lose unsynced work."}},
    {"Adobe",
     {Verdict::mixed,
      "Shared Creative Cloud data. Deleting can break Adobe apps until repaired or re-signed-in."}},
    {"Windsurf",
     {Verdict::mixed,
      "Editor settings, extensions and sign-in. Its caches are cleared from the Caches tab "
      "instead."}},
    {"Cursor",
     {Verdict::mixed,
      "Editor settings, extensions and sign-in. Its caches are cleared from the Caches tab "
      "instead."}},
    {"Code",
     {Verdict::mixed,
      "VS Code settings, extensions and sign-in. Its caches are cleared from the Caches tab "
      "instead."}},
    {"Antigravity",
     {Verdict::mixed,
      "Editor settings and sign-in. Its caches are cleared from the Caches tab instead."}},
    {"Devin", {Verdict::mixed, "Agent app data including sign-in and workspace state."}},
    {"MisterHorse",
     {Verdict::mixed,
      "Animation Composer plugin assets. Re-downloadable from its Product Manager, but slow."}},
    {"CoreSimulator",
     {Verdict::mixed,
      "iOS Simulator devices and caches. No personal data, but manage via Xcode rather than "
      "trashing."}},
    {"group.com.apple.notes",
     {Verdict::keepUserData,
      "Your Notes database. Deleting can permanently lose notes that aren't synced to iCloud."}},
    {"group.com.apple.VoiceMemos.shared",
     {Verdict::keepUserData,
      "Your Voice Memos recordings. Deleting loses recordings not synced to iCloud."}},
    {"group.net.whatsapp.WhatsApp.shared",
     {Verdict::keepUserData,
      "WhatsApp chat media and backups. Deleting can lose chat history and photos."}},
    {"com.apple.Safari",
     {Verdict::keepUserData, "Safari's history, bookmarks and reading list. Deleting loses them."}},
    {"com.apple.mail",
     {Verdict::keepUserData, "Your Mail data. Deleting can lose local mailboxes."}},
    {"com.adobe.dunamis",
     {Verdict::safeToClear,
      "Adobe analytics/telemetry data. Nothing personal; recreated automatically."}},
    {"com.apple.mobileAssetDesktop",
     {Verdict::safeToClear,
      "On-demand fonts, voices and extras. macOS re-downloads them when needed."}},
    {"com.apple.mediaanalysisd",
     {Verdict::safeToClear, "Photo-analysis cache. macOS rebuilds it in the background."}},
    {"com.apple.CoreDevice.CoreDeviceService",
     {Verdict::safeToClear,
      "Support data for connected iPhones/iPads. Recreated next time a device connects."}},
    {"group.com.apple.replicatord",
     {Verdict::systemRecreated,
      "iCloud sync staging. macOS recreates it, but deleting may trigger a full re-sync."}},
    {"group.com.apple.UserNotifications",
     {Verdict::systemRecreated,
      "Notification history and state. macOS recreates it; deleting clears notification history."}},
    {"com.apple.NeptuneOneExtension",
     {Verdict::systemRecreated,
      "iPhone Mirroring support data. Recreated the next time you use iPhone Mirroring."}},
    {"flutter",
     {Verdict::mixed,
      "The Flutter SDK. Re-downloadable from flutter.dev, no personal data. Keep it if you're "
      "actively building Flutter apps."}},
    {"Android",
     {Verdict::mixed,
      "Usually the Android SDK. Re-downloadable via Android Studio, no logins or personal data. "
      "Check it's not your project code before deleting."}},
});

constexpr auto knownParts = std::to_array<KnownFolder>({
    {"com.adobe.GrowthSDK",
     {Verdict::safeToClear,
      "Adobe marketing SDK cache. Nothing personal; recreated automatically."}},
    {"com.crashlytics",
     {Verdict::safeToClear, "Crash-reporting cache. Nothing personal; recreated automatically."}},
});

static_assert(knownNames.size() == 27);

constexpr std::array<std::string_view, 5> roots = {
    "~/Library/Caches",           "~/Library/Application Support", "~/Library/Containers",
    "~/Library/Group Containers", "~/Library/Developer",
};

/// Parts of the one are roots, and the other has a tool of its own.
constexpr std::array<std::string_view, 2> homeRootExclusions = {"Library", "Applications"};

constexpr auto installerTypes = std::to_array<InstallerType>({
    {"dmg", "Disk image"},
    {"pkg", "Installer package"},
    {"mpkg", "Installer package"},
    {"iso", "Disc image"},
});

constexpr auto engines = std::to_array<ContainerEngine>({
    {
        .name = "Docker",
        .detect = {"/Applications/Docker.app", "~/Library/Containers/com.docker.docker"},
        .measure = {"~/Library/Containers/com.docker.docker/Data/vms"},
        .reveal = {"~/Library/Containers/com.docker.docker/Data/vms/0/data",
                   "~/Library/Containers/com.docker.docker/Data/vms/0"},
        .note = "Docker's VM disk: every image, container and volume. Reclaim from inside Docker, "
                "don't delete this file.",
        .command = "docker system prune",
    },
    {
        .name = "OrbStack",
        .detect = {"/Applications/OrbStack.app",
                   "~/Library/Group Containers/HUAQ24HBR6.dev.orbstack", "~/.orbstack"},
        .measure = {"~/Library/Group Containers/HUAQ24HBR6.dev.orbstack/data", "~/.orbstack/data",
                    "~/.orbstack"},
        .reveal = {"~/Library/Group Containers/HUAQ24HBR6.dev.orbstack/data", "~/.orbstack/data",
                   "~/.orbstack"},
        .note = "OrbStack's data. Reclaim from inside OrbStack; deleting this file wipes your "
                "images and containers.",
        .command = "docker system prune",
    },
    {
        .name = "Podman",
        .detect = {"~/.local/share/containers/podman/machine"},
        .measure = {"~/.local/share/containers/podman/machine"},
        .reveal = {"~/.local/share/containers/podman/machine"},
        .note = "Podman's VM disk. Reclaim from inside Podman; deleting it wipes your images and "
                "containers.",
        .command = "podman system prune -a",
    },
    {
        .name = "Colima",
        .detect = {"~/.colima"},
        .measure = {"~/.colima"},
        .reveal = {"~/.colima"},
        .note = "Colima's VM disk. Reclaim from inside; deleting it wipes your Docker images and "
                "containers.",
        .command = "docker system prune -a",
    },
    {
        .name = "Lima",
        .detect = {"~/.lima"},
        .measure = {"~/.lima"},
        .reveal = {"~/.lima"},
        .note = "Lima VM disks. Reclaim from inside the VM; deleting a disk wipes everything in "
                "it.",
        .command = std::nullopt,
    },
});

constexpr std::array<std::string_view, 4> walkExclusions = {
    "~/Library/Containers/com.docker.docker",
    "~/Library/Group Containers/group.com.docker",
    "~/Library/Application Support/Docker Desktop",
    "~/Library/Group Containers/HUAQ24HBR6.dev.orbstack",
};

BigItem::Kind classify(std::string_view path, const Host& host, const KeptEntries& kept) {
    const auto name = lastPathComponent(path);
    if (isArtifactFolderName(name) || isBuildFolderName(name)) return BigItem::Kind::rebuildable;
    // Without a slash behind it, so that "Caches 2" beside it counts as well.
    if (path.starts_with(joinPath(host.home, "Library/Caches")) || name == "Cache" ||
        name == "Caches")
        return BigItem::Kind::cache;
    if (isBelow(path, joinPath(host.home, "Library"))) return BigItem::Kind::appData;
    return personalFolderOf(path, kept) ? BigItem::Kind::personal : BigItem::Kind::other;
}

}  // namespace

DeepScanKnowledge macOSDeepScanKnowledge() {
    return {.names = knownNames,
            .parts = knownParts,
            .places = {},
            .roots = roots,
            .homeRootExclusions = homeRootExclusions,
            .homeEntries = HomeEntries::passedOver,
            .classify = classify,
            .installers = installerTypes,
            .engines = engines,
            .walkExclusions = walkExclusions,
            .unreadNote = {}};
}

}  // namespace tidewell
