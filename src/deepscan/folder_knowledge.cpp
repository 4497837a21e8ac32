#include "deepscan/folder_knowledge.h"

#include <array>

namespace tidewell {

namespace {

using Verdict = FolderKnowledge::Verdict;

struct KnownFolder {
    std::string_view name;
    FolderKnowledge::Fact fact;
};

/// Folders known by their whole name.
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

/// Folders known by a part of their name, tried in this order after the whole names.
constexpr auto knownParts = std::to_array<KnownFolder>({
    {"com.adobe.GrowthSDK",
     {Verdict::safeToClear,
      "Adobe marketing SDK cache. Nothing personal; recreated automatically."}},
    {"com.crashlytics",
     {Verdict::safeToClear, "Crash-reporting cache. Nothing personal; recreated automatically."}},
});

constexpr bool namesAreUnique() {
    for (std::size_t row = 0; row < knownNames.size(); ++row)
        for (std::size_t other = 0; other < row; ++other)
            if (knownNames[row].name == knownNames[other].name) return false;
    return true;
}

static_assert(knownNames.size() == 27);
static_assert(namesAreUnique());

}  // namespace

std::optional<FolderKnowledge::Fact> FolderKnowledge::fact(std::string_view name) {
    for (const auto& known : knownNames)
        if (name == known.name) return known.fact;
    for (const auto& known : knownParts)
        if (name.find(known.name) != std::string_view::npos) return known.fact;
    return std::nullopt;
}

}  // namespace tidewell
