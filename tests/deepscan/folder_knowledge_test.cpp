#include "deepscan/folder_knowledge.h"

#include <gtest/gtest.h>

#include "support/sample_machine.h"

namespace tidewell::test {
namespace {

using Verdict = FolderKnowledge::Verdict;

TEST(FolderKnowledge, MatchesWholeNamesExactlyAndTwoPartsAnywhere) {
    const SampleMachine machine;
    for (const auto name : {"", "google", "GOOGLE", "Google ", "com.adobe.dunamis.1",
                            "com.adobe.growthsdk", "x.com.apple.mail"})
        EXPECT_FALSE(FolderKnowledge::fact(name, machine.host())) << name;

    const struct {
        std::string_view name;
        Verdict verdict;
        std::string_view note;
    } rows[] = {
        {"Google", Verdict::mixed,
         "Chrome's profile: logins, saved passwords, bookmarks, extensions. Don't delete. The "
         "Caches tab safely clears its re-downloadable components instead."},
        {"group.com.apple.notes", Verdict::keepUserData,
         "Your Notes database. Deleting can permanently lose notes that aren't synced to iCloud."},
        {"group.com.apple.replicatord", Verdict::systemRecreated,
         "iCloud sync staging. macOS recreates it, but deleting may trigger a full re-sync."},
        {"x.com.crashlytics.data", Verdict::safeToClear,
         "Crash-reporting cache. Nothing personal; recreated automatically."},
        {"com.crashlytics.com.adobe.GrowthSDK", Verdict::safeToClear,
         "Adobe marketing SDK cache. Nothing personal; recreated automatically."},
    };
    for (const auto& row : rows) {
        const auto fact = FolderKnowledge::fact(row.name, machine.host());
        ASSERT_TRUE(fact) << row.name;
        EXPECT_EQ(fact->verdict, row.verdict) << row.name;
        EXPECT_EQ(fact->note, row.note);
    }
}

/// Where names say little, the place tells: most precise first, and with all below.
TEST(FolderKnowledge, GoesByThePlaceOnLinuxMachines) {
    const SampleMachine machine(System::linux);
    const std::pair<const char*, std::optional<Verdict>> rows[] = {
        {"~/.local/share/Steam/steamapps/compatdata/440", Verdict::keepUserData},
        {"~/.local/share/Steam/steamapps/common/Game", Verdict::mixed},
        {"~/.config/google-chrome-beta", Verdict::keepUserData},
        {"~/.cache/thumbnails", Verdict::safeToClear},
        {"~/.cache/JetBrains", Verdict::mixed},
        {"~/Nextcloud/Photos", Verdict::keepUserData},
        {"~/Code/.wine", std::nullopt},
        {"~/Google", std::nullopt},
    };
    for (const auto& [place, verdict] : rows) {
        const auto fact = FolderKnowledge::fact(machine.path(place), machine.host());
        EXPECT_EQ(fact ? std::optional(fact->verdict) : std::nullopt, verdict) << place;
    }
}

}  // namespace
}  // namespace tidewell::test
