#include "apps/leftover_search.h"

#include <gtest/gtest.h>

#include "apps/apps_machine.h"

namespace tidewell::test {

namespace {

using Lines = std::vector<std::string>;

InstalledApp app(std::string name, std::optional<std::string> bundleID) {
    return {.id = "id",
            .name = std::move(name),
            .url = {},
            .bundleID = std::move(bundleID),
            .version = {},
            .sizeBytes = 0,
            .lastUsed = {}};
}

/// All that a well-behaved application leaves, and what resembles it but belongs to others.
void layOutLibrary(const SampleMachine& machine) {
    for (const auto* path :
         {"Caches/com.acme.notes/db", "Preferences/com.acme.notes.plist",
          "Containers/com.acme.notes/Data/x", "Saved Application State/com.acme.notes.savedState/x",
          "HTTPStorages/com.acme.notes/x", "WebKit/com.acme.notes/x",
          "Application Support/com.acme.notes/x", "Application Support/Notes/x", "Caches/Notes/x",
          "Logs/Notes/x", "Group Containers/TEAM42.com.acme.notes.shared/x",
          "LaunchAgents/com.acme.notes.helper.plist"})
        machine.file("~/Library/" + std::string(path));
    for (const auto* path : {"Caches/com.acme.notes2/x", "Caches/Com.Acme.Notes/x",
                             "Logs/Notes 2/x", "Containers/Notes/x",
                             "Group Containers/group.Notes/x", "LaunchAgents/com.acme.maps.plist",
                             "Keychains/login.keychain-db", "Application Support/a/b/x"})
        machine.file("~/Library/" + std::string(path));
    machine.file("/Library/Caches/com.acme.notes/x");
    machine.file("~/Documents/thesis.tex");
}

TEST(LeftoverSearch, FindsEachPlaceOnceInOrderAndTheLargestFirst) {
    const SampleMachine machine;
    layOutLibrary(machine);
    machine.file("~/Library/Logs/Notes/big", megabyte);
    const auto scanner = scannerOf(machine);
    const auto leftovers = scanner.findLeftovers(app("Notes", "com.acme.notes"));
    EXPECT_EQ(
        linesOf(leftovers, machine),
        (Lines{"Logs/Notes: Logs", "Caches/com.acme.notes: Cache",
               "Preferences/com.acme.notes.plist: Preferences",
               "Containers/com.acme.notes: Container",
               "Saved Application State/com.acme.notes.savedState: Saved State",
               "HTTPStorages/com.acme.notes: Web Storage", "WebKit/com.acme.notes: WebKit Data",
               "Application Support/com.acme.notes: Application Support",
               "Application Support/Notes: Application Support", "Caches/Notes: Cache",
               "Group Containers/TEAM42.com.acme.notes.shared: Group Container",
               "LaunchAgents/com.acme.notes.helper.plist: Launch Agent"}));
    EXPECT_EQ(leftovers[0].sizeBytes, megabyte + 4 * kilobyte);

    // A name that equals the identifier names the same places again.
    EXPECT_EQ(scanner.findLeftovers(app("com.acme.notes", "com.acme.notes")).size(), 9u);
    EXPECT_EQ(linesOf(scanner.findLeftovers(app("Notes", {})), machine),
              (Lines{"Logs/Notes: Logs", "Application Support/Notes: Application Support",
                     "Caches/Notes: Cache"}));
    EXPECT_TRUE(scanner.findLeftovers(app("Unknown", "org.unknown")).empty());
}

TEST(LeftoverSearch, GivesEachRecordAFreshRandomIdentifier) {
    const SampleMachine machine;
    machine.file("~/Library/Caches/Notes", 0);  // what exists counts, however small
    machine.link("~/Library/Logs/Notes", machine.path("~/nowhere"));
    const auto once = scannerOf(machine).findLeftovers(app("Notes", {}));
    const auto again = scannerOf(machine).findLeftovers(app("Notes", {}));
    ASSERT_EQ(linesOf(once, machine), Lines{"Caches/Notes: Cache"});
    EXPECT_NE(once[0].id, again[0].id);
    ASSERT_EQ(once[0].id.size(), 36u);
    EXPECT_EQ(once[0].id[14], '4');
}

TEST(LeftoverSearch, NeverFollowsANameOutOfItsFolderOrToWholeFolders) {
    const SampleMachine machine;
    layOutLibrary(machine);
    machine.file("~/Library/Preferences/.plist");
    const auto scanner = scannerOf(machine);
    using namespace std::string_literals;
    for (const auto& name : {""s, "."s, ".."s, "../Keychains"s, "../../Documents"s, "a/b"s, "/"s,
                             "a/.."s, "x/../../Keychains"s, "\0"s, "..\0x"s, "Notes\0"s}) {
        EXPECT_EQ(linesOf(scanner.findLeftovers(app(name, {})), machine), Lines{}) << name;
        EXPECT_EQ(linesOf(scanner.findLeftovers(app("Unknown", name)), machine), Lines{}) << name;
    }
    // Fragments that stand in nearly every name of a shared folder.
    for (const auto* fragment : {"plist", "notes", ".plist", "com.", "a"})
        for (const auto& leftover : scanner.findLeftovers(app("Unknown", fragment)))
            EXPECT_EQ(leftover.category, "Application Support") << leftover.url;
}

TEST(LeftoverSearch, DoesNotSweepAFolderThroughALink) {
    const SampleMachine machine;
    machine.file("~/Documents/com.acme.notes.txt");
    machine.link("~/Library/LaunchAgents", machine.path("~/Documents"));
    EXPECT_TRUE(scannerOf(machine).findLeftovers(app("Unknown", "com.acme.notes")).empty());
}

}  // namespace

}  // namespace tidewell::test
