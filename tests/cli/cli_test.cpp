#include <gtest/gtest.h>

#include <algorithm>
#include <future>

#include "platform/json.h"
#include "platform/user_defaults.h"
#include "support/disk_picture.h"
#include "support/program_run.h"
#include "support/running_program.h"
#include "support/sample_machine.h"

namespace tidewell {

namespace {

using test::megabyte;
using test::ProgramRun;
using test::SampleMachine;
using Words = std::vector<std::string>;

ProgramRun run(const SampleMachine& machine, Words words) {
    words.insert(words.begin(), {"--root", machine.root()});
    return test::runProgram(TIDEWELL_CLI, words);
}

Value documentOf(const SampleMachine& machine, Words words) {
    words.push_back("--json");
    const auto ended = run(machine, words);
    EXPECT_EQ(ended.errors, "");
    const auto document = parseJson(ended.output);
    EXPECT_TRUE(document) << ended.output;
    return document.value_or(Value());
}

Words keysOf(const Value& value) {
    Words keys;
    if (const auto* members = value.object())
        for (const auto& [key, member] : *members) keys.push_back(key);
    return keys;
}

const Value& at(const Value& value, std::string_view key) {
    static const Value nothing;
    const auto* member = value.find(key);
    EXPECT_TRUE(member) << key;
    return member ? *member : nothing;
}

const Value& first(const Value& list) {
    static const Value nothing;
    const bool holdsSome = list.list() && !list.list()->empty();
    EXPECT_TRUE(holdsSome);
    return holdsSome ? list.list()->front() : nothing;
}

/// Something for every command to find.
void furnish(const SampleMachine& machine) {
    machine.file("~/.npm/one", 8192);
    machine.file("~/.Trash/movie", 65536);
    machine.file("~/Library/Developer/Xcode/Archives/old", 4096);
    machine.file("~/Code/app/node_modules/x", 16384);
    machine.file("~/Games/big/assets", 90 * megabyte);
    machine.file("~/.ollama/models/blob", 501 * megabyte);
    machine.application("/Applications/Notes.app",
                        {{"CFBundleName", "Notes"}, {"CFBundleIdentifier", "com.example.notes"}});
    machine.file("~/Library/Caches/com.example.notes/Cache.db", 12288);
    machine.text("~/Documents/thesis.tex", "years of work");
    machine.text("~/Library/LaunchAgents/com.example.sync.plist",
                 "<plist><dict><key>Label</key><string>sync</string></dict></plist>");
    machine.tool(
        "/usr/bin/xcrun",
        R"(case "$2 $3" in "runtime list") echo '{"a": {"identifier": "a", "name": "iOS 17",
 "sizeBytes": 7000, "deletable": false}}' ;; *) echo '{"devices": {}}' ;; esac)");
}

}  // namespace

TEST(CommandLine, SaysWhatIsWrongWithACallAndDoesNothing) {
    const SampleMachine machine;
    furnish(machine);
    const auto before = test::diskPicture(machine.root());
    const Words calls[] = {
        {},
        {"polish"},
        {"clean", "--only"},
        {"clean", "--only", "no-such-item", "--yes"},
        {"clean", "--also", "chrome-cache", "--yes", "--json"},
        {"clean", "--select", "some", "--yes"},
        {"dev", "--only", "trash", "--yes"},
        {"trash", "--yes"},
        {"trash", machine.path("~/Documents"), "--yes", "--json"},
        {"uninstall", "com.example.nothing", "--yes"},
        {"leftovers"},
        {"advisor", "--delete-runtime", "b", "--yes"},
        {"advisor", "--delete-runtime", "a", "--yes"},  // the tool won't delete it
        {"advisor", "--thin-snapshots", "--remove-unavailable", "--yes"},
        {"apps", "--sort", "colour"},
        {"measure"},
        {"scan", "--home", "/no/such/home"},
    };
    for (const auto& words : calls) {
        const auto ended = run(machine, words);
        EXPECT_EQ(ended.status, 2) << testing::PrintToString(words);
        EXPECT_EQ(ended.output, "") << testing::PrintToString(words);
        EXPECT_NE(ended.errors, "") << testing::PrintToString(words);
    }
    EXPECT_EQ(test::diskPicture(machine.root()), before);
}

TEST(CommandLine, OnlyLooksUnlessItIsToldYes) {
    const SampleMachine machine;
    furnish(machine);
    const auto before = test::diskPicture(machine.root());
    const Words calls[] = {{"scan"},
                           {"clean"},
                           {"clean", "--select", "all", "--json"},
                           {"dev"},
                           {"deep-scan"},
                           {"trash", machine.path("~/Games/big")},
                           {"apps"},
                           {"leftovers", "com.example.notes"},
                           {"uninstall", "com.example.notes"},
                           {"advisor", "--thin-snapshots"},
                           {"status"},
                           {"performance"},
                           {"measure", machine.home()},
                           {"explain", machine.home()},
                           {"catalogue"}};
    for (const auto& words : calls) {
        const auto ended = run(machine, words);
        EXPECT_EQ(ended.status, 0) << testing::PrintToString(words) << ended.errors;
        EXPECT_NE(ended.output, "") << testing::PrintToString(words);
        EXPECT_EQ(ended.errors, "") << testing::PrintToString(words);
        EXPECT_EQ(ended.output.find('\033'), std::string::npos) << "coloured into a file";
    }
    EXPECT_EQ(test::diskPicture(machine.root()), before);
}

TEST(CommandLine, CleansExactlyWhatTheCallPicks) {
    struct Row {
        Words words;
        Words gone;
    };
    const std::string modules = "~/Code/app/node_modules/x";
    const Row rows[] = {
        {{}, {"~/.npm/one", modules}},
        {{"--select", "all"},
         {"~/.npm/one", modules, "~/.Trash/movie", "~/Library/Developer/Xcode/Archives/old"}},
        {{"--select", "none"}, {}},
        {{"--only", "npm-cache"}, {"~/.npm/one"}},
        {{"--select", "all", "--only", "trash"}, {"~/.Trash/movie"}},
        {{"--only", "npm-cache", "--only", "trash"}, {"~/.npm/one", "~/.Trash/movie"}},
        {{"--select", "none", "--also", "xcode-archives"},
         {"~/Library/Developer/Xcode/Archives/old"}},
    };
    for (const auto& row : rows) {
        const SampleMachine machine;
        furnish(machine);
        auto words = row.words;
        words.insert(words.begin(), "clean");
        words.push_back("--yes");
        EXPECT_EQ(run(machine, words).status, 0);
        for (const auto* path : {"~/.npm/one", "~/.Trash/movie", "~/Code/app/node_modules/x",
                                 "~/Library/Developer/Xcode/Archives/old"})
            EXPECT_NE(machine.has(path), std::ranges::find(row.gone, path) != row.gone.end())
                << path << testing::PrintToString(row.words);
        EXPECT_EQ(machine.contentOf("~/Documents/thesis.tex"), "years of work");
    }
}

TEST(CommandLine, WritesTheDocumentsThatScriptsExpect) {
    const SampleMachine machine;
    furnish(machine);
    const auto clean = documentOf(machine, {"clean"});
    EXPECT_EQ(keysOf(clean), (Words{"items", "totalBytes", "selectedBytes", "categories"}));
    EXPECT_EQ(
        keysOf(first(at(clean, "items"))),
        (Words{"id", "title", "detail", "category", "safety", "paths", "sizeBytes", "isSelected"}));
    EXPECT_EQ(keysOf(first(at(clean, "categories"))),
              (Words{"title", "count", "selectedCount", "bytes"}));
    EXPECT_EQ(*at(first(at(clean, "items")), "safety").text(), "caution");

    const auto dev = documentOf(machine, {"dev"});
    EXPECT_EQ(keysOf(dev),
              (Words{"items", "itemsBytes", "selectedBytes", "models", "modelsBytes", "groups"}));
    EXPECT_EQ(keysOf(first(at(dev, "models"))), (Words{"id", "tool", "sizeBytes", "note"}));
    EXPECT_EQ(keysOf(first(at(dev, "groups"))), (Words{"id", "label", "count", "bytes"}));

    const auto deep = documentOf(machine, {"deep-scan"});
    EXPECT_EQ(keysOf(deep), (Words{"items", "totalBytes"}));
    EXPECT_EQ(keysOf(first(at(deep, "items"))),
              (Words{"id", "name", "location", "sizeBytes", "isDirectory", "kind", "bucket"}));

    const auto apps = documentOf(machine, {"apps"});
    EXPECT_EQ(keysOf(apps), (Words{"apps", "totalAppBytes"}));
    EXPECT_EQ(keysOf(first(at(apps, "apps"))), (Words{"id", "name", "path", "bundleID", "sizeBytes",
                                                      "lastUsedLabel", "monthsIdle"}));

    const auto leftovers = documentOf(machine, {"leftovers", "com.example.notes"});
    EXPECT_EQ(keysOf(leftovers), (Words{"app", "leftovers", "totalBytes"}));
    EXPECT_EQ(keysOf(first(at(leftovers, "leftovers"))), (Words{"path", "category", "sizeBytes"}));

    const auto advisor = documentOf(machine, {"advisor"});
    EXPECT_EQ(keysOf(advisor), (Words{"runtimes", "unavailableSims", "snapshotCount", "dockerBytes",
                                      "reclaimableBytes", "hasFindings"}));
    EXPECT_EQ(
        keysOf(first(at(advisor, "runtimes"))),
        (Words{"id", "name", "build", "sizeBytes", "deletable", "deviceNames", "usedByLabel"}));

    const auto scan = documentOf(machine, {"scan"});
    EXPECT_EQ(keysOf(scan), (Words{"clean", "apps", "deepScan", "advisor", "foundBytes", "insights",
                                   "primaryAction"}));
    EXPECT_EQ(*at(at(scan, "primaryAction"), "opens").text(), "clean");

    const auto trash = documentOf(machine, {"trash", machine.path("~/Games/big")});
    EXPECT_EQ(keysOf(trash), (Words{"outcomes", "planned"}));

    const auto performance = documentOf(machine, {"performance"});
    EXPECT_EQ(keysOf(performance), (Words{"memoryUsed", "memoryTotal", "apps", "loginItems"}));
    EXPECT_EQ(keysOf(first(at(performance, "loginItems"))),
              (Words{"label", "program", "plist", "scope"}));

    EXPECT_EQ(keysOf(documentOf(machine, {"status"})),
              (Words{"freeBytes", "totalBytes", "freeFraction", "health", "totalFreedBytes",
                     "hasFullDiskAccess", "isDeveloperMachine"}));  // nothing was cleaned yet
    run(machine, {"clean", "--only", "npm-cache", "--yes"});
    const auto status = documentOf(machine, {"status"});
    EXPECT_EQ(*at(status, "totalFreedBytes").integer(), 8192);
    EXPECT_TRUE(at(status, "lastCleanupAt").text());
    const auto catalogue = documentOf(machine, {"catalogue"});
    EXPECT_EQ(at(catalogue, "targets").list()->size(), 65U);
    EXPECT_EQ(keysOf(first(at(catalogue, "targets"))),
              (Words{"id", "title", "detail", "category", "safety", "paths", "isSweep"}));
}

TEST(CommandLine, MovesToTheTrashAndSaysWhatCouldNotBeMoved) {
    const SampleMachine machine;
    furnish(machine);
    machine.file("~/.colima/disk", 101 * megabyte);
    const auto moved = documentOf(machine, {"trash", machine.path("~/Games/big"), "--yes"});
    EXPECT_EQ(keysOf(first(at(moved, "outcomes"))), (Words{"name", "freedBytes", "success"}));
    EXPECT_TRUE(machine.has("~/.Trash/big/assets"));
    EXPECT_FALSE(machine.has("~/Games/big"));
    EXPECT_EQ(run(machine, {"trash", machine.path("~/.colima"), "--yes"}).status, 1);
    EXPECT_TRUE(machine.has("~/.colima/disk"));
}

TEST(CommandLine, UninstallsByIdOrPathAndRefusesAnIdThatTwoShare) {
    const SampleMachine machine;
    furnish(machine);
    machine.application("~/Applications/Notes Copy.app",
                        {{"CFBundleName", "Notes"}, {"CFBundleIdentifier", "com.example.notes"}});
    const auto ambiguous = run(machine, {"uninstall", "com.example.notes", "--yes"});
    EXPECT_EQ(ambiguous.status, 2);
    EXPECT_NE(ambiguous.errors.find("Notes Copy.app"), std::string::npos);
    EXPECT_TRUE(machine.has("/Applications/Notes.app"));

    const auto document =
        documentOf(machine, {"uninstall", machine.path("~/Applications/Notes Copy.app"), "--yes"});
    EXPECT_EQ(keysOf(at(document, "result")),
              (Words{"appName", "movedCount", "freedBytes", "failed", "appBundleMoved"}));
    EXPECT_TRUE(machine.has("~/.Trash/Notes Copy.app"));
    EXPECT_TRUE(machine.has("~/.Trash/com.example.notes/Cache.db"));
    EXPECT_TRUE(machine.has("/Applications/Notes.app"));
}

/// The stand-in for launchctl sends the interrupt while the uninstall is under way.
TEST(CommandLine, FinishesTheItemInHandOnAFirstInterrupt) {
    const SampleMachine machine;
    furnish(machine);
    machine.text("~/Library/LaunchAgents/com.example.notes.plist", "<plist/>");
    machine.tool("/bin/launchctl", "kill -INT $PPID");
    const auto ended = run(machine, {"uninstall", "com.example.notes", "--yes"});
    EXPECT_EQ(ended.status, 1);
    EXPECT_NE(ended.output.find("Notes"), std::string::npos);
    EXPECT_TRUE(machine.has("~/.Trash/Notes.app"));
    EXPECT_TRUE(machine.has("~/.Trash/com.example.notes.plist"));
}

TEST(CommandLine, AsksARunningApplicationToQuit) {
    const SampleMachine machine;
    machine.application("/Applications/Notes.app",
                        {{"CFBundleName", "Notes"}, {"CFBundleIdentifier", "com.example.notes"}});
    const test::RunningProgram program(machine.path("/Applications/Notes.app/Contents/MacOS/Run"));
    const auto performance = documentOf(machine, {"performance"});
    const auto& app = first(at(performance, "apps"));
    EXPECT_EQ(keysOf(app), (Words{"pid", "name", "bundleID", "path", "memoryBytes"}));
    const auto pid = std::to_string(*at(app, "pid").integer());
    const auto quit = documentOf(machine, {"quit", pid});
    EXPECT_EQ(keysOf(quit), (Words{"asked", "message"}));
    EXPECT_TRUE(*at(quit, "asked").boolean());
    EXPECT_EQ(run(machine, {"quit", pid}).status, 2);  // it is listed no more
    EXPECT_EQ(run(machine, {"quit", "1"}).status, 2);
}

TEST(CommandLine, EndsAtOnceWhenInterruptedDuringAScan) {
    const SampleMachine machine;
    furnish(machine);
    machine.tool("/usr/bin/xcrun", "kill -INT $PPID; sleep 60");
    EXPECT_EQ(run(machine, {"advisor"}).status, std::nullopt);
}

TEST(CommandLine, KeepsTheSumOfTwoCleansAtOnce) {
    const SampleMachine machine;
    for (int i = 0; i < 200; ++i) {
        machine.file("~/.npm/" + std::to_string(i), 4096);
        machine.file("~/.m2/repository/" + std::to_string(i), 4096);
    }
    const auto clean = [&machine](const char* id) {
        return std::async(std::launch::async, [&machine, id] {
            return run(machine, {"clean", "--only", id, "--yes"}).status;
        });
    };
    auto one = clean("npm-cache");
    auto other = clean("maven-repo");
    EXPECT_EQ(one.get(), 0);
    EXPECT_EQ(other.get(), 0);
    EXPECT_EQ(UserDefaults(machine.host().configurationDirectory).integer("totalFreedBytes"),
              2 * 200 * 4096);
}

TEST(CommandLine, ShowsHostileNamesWithoutObeyingThem) {
    const SampleMachine machine;
    machine.file("~/Code/a\033[2Jb\n/node_modules/x");
    machine.file("~/Code/\xff\xfe/node_modules/x");
    const auto text = run(machine, {"clean"});
    EXPECT_EQ(text.output.find('\033'), std::string::npos);
    EXPECT_NE(text.output.find("a\\x1b[2Jb\\n"), std::string::npos);
    const auto document = documentOf(machine, {"clean"});
    EXPECT_EQ(at(document, "items").list()->size(), 2U);

    // An id is taken by its bytes, and as the document shows it.
    const auto shown =
        "artifact:node_modules:" + machine.home() + "/Code/\uFFFD\uFFFD/node_modules";
    EXPECT_EQ(run(machine, {"clean", "--only", shown, "--yes"}).status, 0);
    EXPECT_FALSE(machine.has("~/Code/\xff\xfe/node_modules/x"));
    EXPECT_TRUE(machine.has("~/Code/a\033[2Jb\n/node_modules/x"));
}

TEST(CommandLine, ExplainsWhatMayBeRemovedAndWhy) {
    const SampleMachine machine;
    furnish(machine);
    machine.link("~/.gradle", machine.path("~/Documents"));
    struct Row {
        std::string path;
        std::string_view rule;
        bool deletable;
        Words claimedBy;
    };
    const Row rows[] = {
        {"~/.ssh/id_ed25519", "protected", false, {}},
        {"~/.npm/_cacache", "open-folder", true, {"npm-cache"}},
        {"~/Documents/thesis.tex", "personal", false, {}},
        {"~/Documents/app/node_modules", "build-folder", true, {}},
        {"~", "outside-home", false, {}},
        {"/Applications", "outside-home", false, {}},
        {"/var/folders/zz/ada/T/x", "deletable-root", true, {"user-temp"}},
        {"~/Library/Caches/Google/Chrome/x",
         "open-folder",
         true,
         {"chrome-cache", "other-app-caches"}},
        {"~/.gradle/caches", "personal", false, {"gradle-caches"}},  // by its real location
    };
    for (const auto& row : rows) {
        const auto known = documentOf(machine, {"explain", machine.path(row.path)});
        EXPECT_EQ(*at(known, "rule").text(), row.rule) << row.path;
        EXPECT_EQ(*at(known, "deletable").boolean(), row.deletable) << row.path;
        Words claims;
        for (const auto& id : *at(known, "claimedBy").list()) claims.push_back(*id.text());
        EXPECT_EQ(claims, row.claimedBy) << row.path;
    }
}

TEST(CommandLine, LeavesWhatItCannotRemoveAndEndsWithOne) {
    const SampleMachine machine;
    furnish(machine);
    machine.link("~/.m2", machine.path("~/Documents"));
    machine.file("~/Documents/repository/precious");
    const auto ended = run(machine, {"clean", "--only", "maven-repo", "--yes"});
    EXPECT_EQ(ended.status, 1);
    EXPECT_NE(ended.output.find("A few items wouldn't budge"), std::string::npos);
    EXPECT_TRUE(machine.has("~/Documents/repository/precious"));
}

}  // namespace tidewell
