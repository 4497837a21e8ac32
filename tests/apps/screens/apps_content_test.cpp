#include "apps/screens/apps_content.h"

#include <gtest/gtest.h>

#include "support/sample_machine.h"

namespace tidewell::test {

namespace {

using std::chrono::days;

const Date today = std::chrono::sys_days(std::chrono::year(2026) / 7 / 15) + std::chrono::hours(12);

InstalledApp app(std::string name, ByteCount size, std::optional<Date> lastUsed = {}) {
    return {.id = name,
            .name = name,
            .url = "/Applications/" + name + ".app",
            .bundleID = {},
            .version = {},
            .sizeBytes = size,
            .lastUsed = lastUsed};
}

TEST(AppsContent, ShowsTheStateThatTheModelIsIn) {
    const SampleMachine machine;
    AppsViewModel model(machine.host());
    EXPECT_EQ(appsContent(model, today).subtitle, "");
    EXPECT_EQ(appsContent(model, today).notice->line,
              "Find apps you never open. Trash first, undo anytime.");

    model.phase = AppsViewModel::Phase::scanning;
    model.apps = std::vector{app("Old", 1)};
    EXPECT_EQ(appsContent(model, today).notice->line, "Checking your apps…");
    EXPECT_EQ(appsContent(model, today).subtitle,
              "Uninstall apps together with their leftover files");
    EXPECT_TRUE(appsContent(model, today).cards.empty());

    model.phase = AppsViewModel::Phase::list;
    model.apps = std::vector{app("Small", 1'000'000), app("Big", 2'500'000'000)};
    model.sortOrder = SortOrder::largest;
    model.isBuildingPlan = true;
    const auto content = appsContent(model, today);
    EXPECT_EQ(content.subtitle, "2 apps · 2.5 GB. Deletes go to the Trash, undo anytime.");
    EXPECT_EQ(content.sortLabel, "Largest");
    EXPECT_EQ(content.sortChoices.size(), 3u);
    EXPECT_TRUE(content.sortChoices[1].isChosen);
    EXPECT_FALSE(content.sortChoices[0].isChosen);
    ASSERT_EQ(content.cards.size(), 2u);
    EXPECT_EQ(content.cards[0].app.name, "Big");
    EXPECT_TRUE(content.isHuntingLeftovers);
    EXPECT_FALSE(content.notice || content.banner || content.sheet);
}

TEST(AppsContent, MarksHelpersAndWhatIsKnownToBeUnused) {
    struct Row {
        InstalledApp app;
        std::string_view mark;
        std::string_view line;
    };
    const Row rows[] = {
        {app("Notes", 0, today - days(89)), "", "Used 2 months ago"},
        {app("Notes", 0, today - days(90)), "unused", "Used 2 months ago"},
        {app("Notes", 0, today - days(800)), "unused", "Used 2 years ago"},
        {app("Notes", 0), "", "No recent use on record"},
        {app("Universe", 0, today - days(800)), "helper",
         "Red Giant plugin. Loads inside After Effects/Premiere, never opened directly."},
    };
    for (const auto& row : rows) {
        const auto card = appCard(row.app, today);
        EXPECT_EQ(label(card.mark), row.mark) << card.line;
        EXPECT_EQ(card.line, row.line);
    }
    EXPECT_EQ(appCard(app("Notes", -5), today).size, "Zero KB");
    EXPECT_EQ(appCard(app("Notes", 0), today).trashHelp, "Uninstall Notes");
}

TEST(AppsContent, TellsHowAnUninstallEnded) {
    UninstallResult result;
    result.appName = "Notes";
    result.movedCount = 1;
    result.freedBytes = 72'000;
    const auto success = resultBanner(result);
    EXPECT_EQ(success.tone, ResultBanner::Tone::success);
    EXPECT_EQ(success.title, "Moved Notes to the Trash");
    EXPECT_EQ(success.line, "1 items · 72 KB. Empty the Trash to lock it in.");

    result.failed = {"a.plist", "b"};
    result.appBundleMoved = true;
    const auto warning = resultBanner(result);
    EXPECT_EQ(warning.tone, ResultBanner::Tone::warning);
    EXPECT_EQ(warning.title, "Notes: some items couldn't be moved");
    EXPECT_EQ(warning.line, "Couldn't move: a.plist, b");
}

TEST(AppsContent, ListsOnTheSheetAllThatGoes) {
    UninstallPlan plan{.app = app("Notes", 1'000'000), .leftovers = {}};
    EXPECT_EQ(uninstallSheet(plan).emptyNote, "No leftovers. Clean app.");
    EXPECT_EQ(uninstallSheet(plan).line, "1 items · 1 MB will move to the Trash");

    plan.leftovers.push_back(
        {.id = {}, .url = "/x/Library/Caches/Notes", .category = "Cache", .sizeBytes = 500'000});
    const auto sheet = uninstallSheet(plan);
    EXPECT_EQ(sheet.title, "Uninstall Notes?");
    EXPECT_EQ(sheet.line, "2 items · 1.5 MB will move to the Trash");
    EXPECT_EQ(sheet.emptyNote, "");
    ASSERT_EQ(sheet.rows.size(), 2u);
    EXPECT_EQ(sheet.rows[0].title, "Notes.app");
    EXPECT_EQ(sheet.rows[0].label, "Application");
    EXPECT_EQ(sheet.rows[1].title, "Notes");
    EXPECT_EQ(sheet.rows[1].label, "Cache");
    EXPECT_EQ(sheet.rows[1].size, "500 KB");
}

}  // namespace

}  // namespace tidewell::test
