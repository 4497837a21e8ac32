#include "deepscan/folder_knowledge.h"

#include <gtest/gtest.h>

namespace tidewell::test {
namespace {

using Verdict = FolderKnowledge::Verdict;

TEST(FolderKnowledge, MatchesWholeNamesExactlyAndTwoPartsAnywhere) {
    for (const auto name : {"", "google", "GOOGLE", "Google ", "com.adobe.dunamis.1",
                            "com.adobe.growthsdk", "x.com.apple.mail"})
        EXPECT_FALSE(FolderKnowledge::fact(name)) << name;

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
        const auto fact = FolderKnowledge::fact(row.name);
        ASSERT_TRUE(fact) << row.name;
        EXPECT_EQ(fact->verdict, row.verdict) << row.name;
        EXPECT_EQ(fact->note, row.note);
    }
}

}  // namespace
}  // namespace tidewell::test
