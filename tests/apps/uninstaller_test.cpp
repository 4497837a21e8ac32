#include "apps/uninstaller.h"

#include <gtest/gtest.h>

#include "apps/apps_machine.h"
#include "apps/uninstall_guard.h"
#include "support/running_program.h"

namespace tidewell::test {

namespace {

using Names = std::vector<std::string>;

/// A machine with one application, "Notes", and leftovers of it.
class Uninstaller : public testing::Test {
 protected:
    Uninstaller() {
        machine.application("/Applications/Notes.app", {{"CFBundleIdentifier", "com.acme.notes"}},
                            megabyte);
        machine.file("~/Library/Caches/com.acme.notes/db", 64 * kilobyte);
        machine.file("~/Library/LaunchAgents/com.acme.notes.plist");
    }

    /// The plan for the application whose bundle has this name.
    UninstallPlan planFor(std::string_view name) const {
        const auto scanner = scannerOf(machine);
        for (const auto& app : scanner.scan())
            if (app.name == name) return {.app = app, .leftovers = scanner.findLeftovers(app)};
        throw std::runtime_error("no application " + std::string(name));
    }

    UninstallPlan planFor(std::string bundle, std::vector<std::string> leftovers) const {
        UninstallPlan plan;
        plan.app.name = "Odd";
        plan.app.url = std::move(bundle);
        for (auto& path : leftovers)
            plan.leftovers.push_back(
                {.id = {}, .url = std::move(path), .category = "Cache", .sizeBytes = 5});
        return plan;
    }

    UninstallResult uninstall(const UninstallPlan& plan) const {
        return tidewell::uninstall(plan, machine.host());
    }

    SampleMachine machine;
};

TEST_F(Uninstaller, MovesTheBundleAndThenItsLeftoversToTheTrash) {
    machine.text("~/.Trash/Notes.app/mine", "an older one");
    machine.file("~/Library/Caches/com.acme.maps/db");
    const auto plan = planFor("Notes");
    machine.file("~/Library/Caches/com.acme.notes/later", megabyte);
    const auto result = uninstall(plan);
    EXPECT_EQ(result.appName, "Notes");
    EXPECT_EQ(result.movedCount, 3);
    EXPECT_EQ(result.freedBytes, plan.totalBytes());
    EXPECT_EQ(result.freedBytes, megabyte + 72 * kilobyte);
    EXPECT_TRUE(result.appBundleMoved);
    EXPECT_EQ(result.failed, Names{});
    EXPECT_FALSE(machine.has("/Applications/Notes.app"));
    EXPECT_FALSE(machine.has("~/Library/Caches/com.acme.notes"));
    EXPECT_FALSE(machine.has("~/Library/LaunchAgents/com.acme.notes.plist"));
    EXPECT_EQ(machine.contentOf("~/.Trash/Notes.app/mine"), "an older one");
    EXPECT_TRUE(machine.has("~/.Trash/Notes 2.app/Contents/Info.plist"));
    EXPECT_TRUE(machine.has("~/.Trash/com.acme.notes/later"));
    EXPECT_TRUE(machine.has("~/.Trash/com.acme.notes.plist"));
    EXPECT_TRUE(machine.has("~/Library/Caches/com.acme.maps/db"));
}

TEST_F(Uninstaller, GoesOnAfterAFailureAndCountsOnlyWhatMoved) {
    machine.application("/Volumes/External/Odd.app", {});
    machine.file("/Users/eve/Library/Caches/x");
    const auto result = uninstall(planFor(
        machine.path("/Volumes/External/Odd.app"),
        {machine.path("~/Library/Caches/gone"), machine.path("~/Library/Caches/com.acme.notes"),
         machine.path("/Users/eve/Library/Caches/x"), machine.path("/Applications/")}));
    EXPECT_EQ(result.failed, (Names{"Odd.app", "gone", "x", "Applications"}));
    EXPECT_EQ(result.movedCount, 1);
    EXPECT_EQ(result.freedBytes, 5);
    EXPECT_FALSE(result.appBundleMoved);
    EXPECT_TRUE(machine.has("/Volumes/External/Odd.app"));
    EXPECT_TRUE(machine.has("/Users/eve/Library/Caches/x"));
    EXPECT_TRUE(machine.has("~/.Trash/com.acme.notes/db"));
}

TEST_F(Uninstaller, UnloadsALaunchAgentBeforeItMovesTheFile) {
    machine.tool("/bin/launchctl",
                 "test -e \"$2\" && echo \"$1 $2\" >>'" + machine.root() + "/calls'\nexit 3\n");
    machine.file("~/Library/LaunchAgents/plain.plist");
    machine.link("~/Library/Linked", machine.path("~/Documents"));
    machine.file("~/Documents/agent.plist");
    auto plan = planFor("Notes");
    const auto agent = machine.path("~/Library/LaunchAgents/com.acme.notes.plist");
    plan.leftovers.push_back({.id = {},
                              .url = machine.path("~/Library/LaunchAgents/plain.plist"),
                              .category = "Preferences",
                              .sizeBytes = 0});
    plan.leftovers.push_back({.id = {},
                              .url = machine.path("~/Library/Linked/agent.plist"),
                              .category = "Launch Agent",
                              .sizeBytes = 0});

    machine.link("~/.Trash", machine.path("~/Documents"));  // nothing can be moved
    EXPECT_EQ(uninstall(plan).movedCount, 0);
    EXPECT_EQ(machine.contentOf("/calls"), "unload " + agent + "\n");

    machine.remove("~/.Trash");
    const auto result = uninstall(plan);
    EXPECT_EQ(result.failed, Names{"agent.plist"});
    EXPECT_EQ(machine.contentOf("/calls"), "unload " + agent + "\nunload " + agent + "\n");
    EXPECT_TRUE(machine.has("~/.Trash/com.acme.notes.plist"));
}

TEST_F(Uninstaller, LeavesARunningApplicationAlone) {
    const auto plan = planFor("Notes");
    const RunningProgram program(machine.path("/Applications/Notes.app/Contents/MacOS/Notes"));
    const auto result = uninstall(plan);
    EXPECT_EQ(result.failed, Names{"Notes is still running. Quit it and try again"});
    EXPECT_EQ(result.appName, "Notes");
    EXPECT_EQ(result.movedCount, 0);
    EXPECT_FALSE(result.appBundleMoved);
    EXPECT_TRUE(machine.has("/Applications/Notes.app"));
    EXPECT_TRUE(machine.has("~/Library/LaunchAgents/com.acme.notes.plist"));
    EXPECT_FALSE(machine.has("~/.Trash"));

    // Without an identifier nobody can tell whether it runs.
    auto nameless = plan;
    nameless.app.bundleID.reset();
    EXPECT_TRUE(uninstall(nameless).appBundleMoved);
}

TEST_F(Uninstaller, MovesNothingThatALinkLeadsTo) {
    machine.application("~/Documents/My Apps/Mine.app", {});
    machine.link("~/Applications", machine.path("~/Documents/My Apps"));
    machine.file("~/Documents/com.acme.notes/thesis.tex");
    machine.link("~/Library/WebKit", machine.path("~/Documents"));
    machine.link("~/Documents/caches", machine.path("~/Library/Caches"));
    machine.application("/Volumes/External/Tool.app", {});
    machine.link("/Applications/Tool.app", machine.path("/Volumes/External/Tool.app"));
    const auto result = uninstall(planFor(machine.path("~/Applications/Mine.app"),
                                          {machine.path("~/Library/WebKit/com.acme.notes"),
                                           machine.path("~/Library/../Documents/com.acme.notes"),
                                           machine.path("~/Documents/caches/com.acme.notes"),
                                           machine.path("/Applications/Tool.app/")}));
    EXPECT_EQ(result.failed,
              (Names{"Mine.app", "com.acme.notes", "com.acme.notes", "com.acme.notes"}));
    EXPECT_TRUE(machine.has("~/Library/Caches/com.acme.notes/db"));
    EXPECT_TRUE(machine.has("~/Documents/My Apps/Mine.app/Contents/Info.plist"));
    EXPECT_TRUE(machine.has("~/Documents/com.acme.notes/thesis.tex"));
    // The link itself is what goes, never what it points to.
    EXPECT_TRUE(machine.has("~/.Trash/Tool.app"));
    EXPECT_TRUE(machine.has("/Volumes/External/Tool.app/Contents/Info.plist"));
}

TEST_F(Uninstaller, AllowsOnlyWhatLiesInTheApplicationsFoldersAndTheOwnLibrary) {
    const UninstallGuard guard(machine.host());
    for (const auto* path : {"/Applications/X.app", "/Applications/Utilities/X.app",
                             "~/Applications/X.app", "~/Library/Caches/x", "/Applications/./X.app"})
        EXPECT_TRUE(guard.isAllowed(machine.path(path))) << path;
    for (const auto* path :
         {"/Applications", "/Applications/", "/Applications/.", "/Applications/..", "/", "~",
          "~/Applications", "~/Library", "~/Library/", "~/Library/..", "~/Documents/x",
          "/applications/X.app", "/ApplicationsX/X.app", "~/LibraryX/x", "/Library/Caches/x",
          "/Users/eve/Library/x", "/System/Applications/X.app", "/Applications/../System/X",
          "/Volumes/E/Applications/X.app"})
        EXPECT_FALSE(guard.isAllowed(machine.path(path))) << path;
    EXPECT_FALSE(guard.isAllowed(machine.path("~/Library/Caches") + std::string("/\0x", 3)));
    auto sealed = machine.host();
    sealed.home = machine.path("/System/Users/ada");
    EXPECT_FALSE(UninstallGuard(sealed).isAllowed(sealed.home + "/Library/Caches/x"));
    // Absolute paths of the machine that the program runs on are not those of the sample.
    EXPECT_FALSE(guard.isAllowed("/Applications/X.app"));
}

TEST_F(Uninstaller, KeepsWhatAPersonalFolderOrAKeyLeadsTo) {
    machine.text("~/Library/Caches/App/keys/id", "x");
    machine.text("~/Library/Sync/Documents/thesis", "x");
    machine.link("~/.ssh", "Library/Caches/App/keys");
    machine.link("~/Documents", "Library/Sync/Documents");
    const UninstallGuard guard(machine.host());
    for (const auto* path : {"~/Library/Caches/App", "~/Library/Caches/App/keys/id",
                             "~/Library/Sync", "~/Library/Sync/Documents/thesis"})
        EXPECT_FALSE(guard.approve(machine.path(path))) << path;
    EXPECT_TRUE(guard.approve(machine.path("~/Library/Caches/App/other")));
}

}  // namespace

}  // namespace tidewell::test
