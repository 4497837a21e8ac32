#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <future>
#include <regex>

#include "cli/furnished_machine.h"
#include "platform/json.h"
#include "platform/user_defaults.h"
#include "support/program_run.h"
#include "support/running_program.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell {

namespace {

using test::FurnishedMachine;
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

}  // namespace

/// What the library that takes the words apart says is its own; the rest stands in a transcript.
TEST(CommandLine, SaysWhatIsWrongWithTheWordsOfACall) {
    const FurnishedMachine machine;
    const Words calls[] = {
        {},
        {"polish"},
        {"clean", "--only"},
        {"clean", "--select", "some", "--yes"},
        {"trash", "--yes"},
        {"leftovers"},
        {"apps", "--sort", "colour"},
        {"measure"},
    };
    for (const auto& words : calls) {
        const auto ended = run(machine, words);
        EXPECT_EQ(ended.status, 2) << testing::PrintToString(words);
        EXPECT_EQ(ended.output, "") << testing::PrintToString(words);
        EXPECT_NE(ended.errors, "") << testing::PrintToString(words);
    }
}

TEST(CommandLine, EndsWithAStatusThatSaysWhatBecameOfTheCall) {
    struct Row {
        Words words;
        void (*prepare)(const SampleMachine&);
        int status;
    };
    const auto noTrash = [](const SampleMachine& machine) {
        machine.remove("~/.Trash");
        machine.text("~/.Trash", "no folder");
    };
    const auto failingTool = [](const SampleMachine& machine) {
        machine.tool("/usr/bin/tmutil", "exit 1");
    };
    const auto twoHomes = [](const SampleMachine& machine) { machine.folder("/Users/eve"); };
    const Row rows[] = {
        {{"uninstall", "com.example.notes", "--yes"}, noTrash, 1},
        {{"uninstall", "com.example.notes", "--yes", "--json"}, noTrash, 1},
        {{"advisor", "--thin-snapshots", "--yes"}, failingTool, 1},
        {{"clean"}, twoHomes, 2},
    };
    for (const auto& [words, prepare, status] : rows) {
        const FurnishedMachine machine;
        prepare(machine);
        EXPECT_EQ(run(machine, words).status, status) << testing::PrintToString(words);
        EXPECT_TRUE(machine.has("/Applications/Notes.app"));
    }
}

TEST(CommandLine, FailsWhereNobodyHearsWhatItSays) {
    const FurnishedMachine machine;
    for (const auto* words :
         {"clean --only npm-cache --yes >/dev/full", "clean --json >&-", "--help >/dev/full"}) {
        const auto call = "\"$0\" --root \"$1\" " + std::string(words);
        const auto ended = test::runProgram("/bin/sh", {"-c", call, TIDEWELL_CLI, machine.root()});
        EXPECT_EQ(ended.status, 3) << call;
        EXPECT_NE(ended.errors, "") << call;
    }
    EXPECT_FALSE(machine.has("~/.npm/one"));  // it did what it was told to
}

/// Each is open in the call for a tool to see; whatever were opened in its place would be written
/// to.
TEST(CommandLine, OpensNothingInThePlaceOfAStandardStreamThatIsClosed) {
    for (const std::string stream : {"0", "1", "2"}) {
        const FurnishedMachine machine;
        machine.tool("/usr/bin/xcrun",
                     "readlink /proc/$PPID/fd/" + stream + " >'" + machine.path("/seen") + "'");
        const auto call = "\"$0\" --root \"$1\" advisor " + stream + ">&-";
        test::runProgram("/bin/sh", {"-c", call, TIDEWELL_CLI, machine.root()});
        EXPECT_EQ(machine.contentOf("/seen"), "/dev/null\n") << stream;
    }
}

/// A watcher beside it sends the interrupts as soon as the first of
/// many items is gone.
ProgramRun interruptedWhenGone(const SampleMachine& machine, const std::string& path, Words words,
                               const std::string& signals = "INT") {
    words.insert(words.begin(),
                 {"-c",
                  "(while [ -e \"$0\" ] && kill -0 $$; do :; done; for signal in " + signals +
                      "; do kill -$signal $$; done) >/dev/null & exec \"$@\"",
                  path, TIDEWELL_CLI, "--root", machine.root()});
    return test::runProgram("/bin/sh", words);
}

TEST(CommandLine, StopsMovesToTheTrashBehindTheItemInHandOnAFirstInterrupt) {
    const SampleMachine machine;
    machine.file("~/Games/0/assets", 90 * megabyte);
    Words words = {"trash", "--yes"};
    constexpr int count = 200;
    for (int i = 0; i < count; ++i) {
        const auto game = machine.path("~/Games/" + std::to_string(i));
        words.push_back(game);
        machine.folder("~/Games/" + std::to_string(i));
        if (i > 0)
            std::filesystem::create_hard_link(machine.path("~/Games/0/assets"), game + "/assets");
    }
    EXPECT_EQ(interruptedWhenGone(machine, machine.path("~/Games/0"), words).status, 1);
    EXPECT_TRUE(machine.has("~/.Trash/0/assets"));
    EXPECT_TRUE(machine.has("~/Games/" + std::to_string(count - 1)));
}

void expectStopsBehindTheItemInHand(const std::string& signals) {
    SCOPED_TRACE(signals);
    const SampleMachine machine;
    constexpr int count = 150;
    for (int i = 0; i < count; ++i)
        for (int j = 0; j < 10; ++j)
            machine.text("~/Code/" + std::to_string(i) + "/node_modules/" + std::to_string(j), "x");
    machine.file("~/.npm/one", megabyte);  // the largest goes first
    const auto ended = interruptedWhenGone(machine, machine.path("~/.npm/one"),
                                           {"--json", "clean", "--yes"}, signals);
    EXPECT_EQ(ended.status, 1);
    const auto document = parseJson(ended.output).value_or(Value());
    int left = 0;
    for (int i = 0; i < count; ++i) {
        const auto folder = "~/Code/" + std::to_string(i) + "/node_modules/";
        EXPECT_EQ(machine.has(folder + "0"), machine.has(folder + "9")) << "half removed";
        left += machine.has(folder + "0") ? 1 : 0;
    }
    EXPECT_GT(left, 0);
    EXPECT_EQ(*at(document, "freedBytes").integer(), megabyte + (count - left) * 10 * 4096);
}

TEST(CommandLine, StopsACleanBehindTheItemInHandOnAFirstInterrupt) {
    for (const auto* signals : {"INT", "TERM HUP", "HUP HUP", "PIPE PIPE"})
        expectStopsBehindTheItemInHand(signals);
}

TEST(CommandLine, TellsHowMuchCouldNotBeReadWhereThatIsTold) {
    test::expectInSeparateProcess([] {
        test::becomeOrdinaryUser();
        for (const auto system : {System::macOS, System::linux}) {
            const SampleMachine machine(system);
            machine.file("~/.npm/_cacache/open/one");
            for (const auto* closed : {"~/.npm/_cacache/a", "~/.gradle/caches"}) {
                machine.folder(closed);
                ASSERT_EQ(::chmod(machine.path(closed).c_str(), 0), 0);
            }
            for (const auto* command : {"clean", "dev", "deep-scan"})
                EXPECT_EQ(
                    run(machine, {command}).errors,
                    system == System::macOS ? "" : "tidewell-cli: 2 folders could not be read.\n")
                    << command;
        }
    });
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
        const FurnishedMachine machine;
        auto words = row.words;
        words.insert(words.begin(), "clean");
        words.push_back("--yes");
        run(machine, words);
        for (const auto* path : {"~/.npm/one", "~/.Trash/movie", "~/Code/app/node_modules/x",
                                 "~/Library/Developer/Xcode/Archives/old"})
            EXPECT_NE(machine.has(path), std::ranges::find(row.gone, path) != row.gone.end())
                << path << testing::PrintToString(row.words);
        EXPECT_EQ(machine.contentOf("~/Documents/thesis.tex"), "years of work");
    }
}

TEST(CommandLine, PutsBackWhatIsNamedAndNothingThatTwoThingsAreCalled) {
    const SampleMachine machine;
    const auto origin = machine.path("~/Games/big");
    for (int round = 0; round < 2; ++round) {
        machine.file("~/Games/big/assets", 101 * megabyte);
        run(machine, {"trash", origin, "--yes"});
    }
    machine.text("~/.Trash/of others", "x");
    const auto list = documentOf(machine, {"put-back"});
    ASSERT_EQ(at(list, "items").list()->size(), 3U);
    EXPECT_EQ(keysOf(first(at(list, "items"))),
              (Words{"name", "origin", "deletedAt", "sizeBytes", "folder"}));
    const auto shared = run(machine, {"put-back", origin, "--yes"});
    EXPECT_EQ(shared.status, 2);
    EXPECT_NE(shared.errors.find(machine.path("~/.Trash/big 2")), std::string::npos);
    EXPECT_EQ(run(machine, {"put-back", "unknown", "--yes"}).status, 2);
    EXPECT_EQ(run(machine, {"put-back", "big 2"}).status, 0);
    EXPECT_FALSE(machine.has("~/Games/big"));  // it only said what it would do

    const auto back = documentOf(machine, {"put-back", "big 2", "--yes"});
    EXPECT_EQ(keysOf(first(at(back, "outcomes"))), (Words{"name", "success"}));
    EXPECT_TRUE(machine.has("~/Games/big/assets"));
    const auto stays = run(machine, {"put-back", origin, "of others", "--yes"});
    EXPECT_EQ(stays.status, 1);
    EXPECT_NE(stays.output.find("Something stands there already."), std::string::npos);
    EXPECT_TRUE(machine.has("~/.Trash/big/assets") && machine.has("~/.Trash/of others"));
}

TEST(CommandLine, TakesAPathAsItsUserNamesIt) {
    const SampleMachine machine;
    machine.file("~/Games/big/assets", 90 * megabyte);
    machine.link("/Users/link", machine.home());
    const auto game = machine.path("/Users/link") + "/Games/big";
    const auto call = [&](Words words) {
        words.insert(words.end(), {"--home", machine.path("/Users/link")});
        return run(machine, words);
    };
    EXPECT_NE(call({"explain", game}).output.find("(open-folder)"), std::string::npos);
    EXPECT_EQ(call({"trash", game, "--yes"}).status, 0);
    EXPECT_FALSE(machine.has("~/Games/big"));
    EXPECT_EQ(call({"put-back", game, "--yes"}).status, 0);
    EXPECT_TRUE(machine.has("~/Games/big/assets"));
}

TEST(CommandLine, UninstallsByIdOrPathAndRefusesAnIdThatTwoShare) {
    const FurnishedMachine machine;
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
    const FurnishedMachine machine;
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

TEST(CommandLine, NamesNoOtherSystemOnALinuxMachine) {
    const SampleMachine machine(System::linux);
    machine.file("~/.npm/one");
    machine.file("~/Games/big/assets", 90 * megabyte);
    machine.file("~/Code/repository/precious");
    machine.link("~/.m2", machine.path("~/Code"));
    const std::regex otherSystem(
        R"re(\b(Mac|macOS|Apple|Finder|Xcode|iOS|System Settings)\b|Full ?Disk)re");
    const Words calls[] = {{"--help"},
                           {"clean", "--help"},
                           {"advisor", "--help"},
                           {"scan"},
                           {"clean"},
                           {"clean", "--select", "all", "--yes"},
                           {"clean"},
                           {"dev"},
                           {"deep-scan"},
                           {"trash", machine.path("~/Games/big"), "--yes"},
                           {"apps"},
                           {"advisor"},
                           {"performance"},
                           {"status"},
                           {"status", "--json"}};
    for (const auto& words : calls) {
        const auto ended = run(machine, words);
        EXPECT_FALSE(std::regex_search(ended.output, otherSystem))
            << testing::PrintToString(words) << ended.output;
        EXPECT_NE(ended.output, "") << testing::PrintToString(words) << ended.errors;
    }
    EXPECT_EQ(*at(documentOf(machine, {"status"}), "system").text(), "linux");
}

TEST(CommandLine, EndsAtOnceWhenInterruptedDuringAScan) {
    const FurnishedMachine machine;
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

TEST(CommandLine, TakesAnIdByItsBytesAndAsTheDocumentShowsIt) {
    const SampleMachine machine;
    machine.file("~/Code/\xff\xfe/node_modules/x");
    machine.file("~/Code/\xff\xff/node_modules/x");
    const auto id = "artifact:node_modules:" + machine.home() + "/Code/";
    EXPECT_EQ(run(machine, {"clean", "--only", id + "\uFFFD\uFFFD/node_modules", "--yes"}).status,
              2);
    EXPECT_EQ(run(machine, {"clean", "--only", id + "\xff\xff/node_modules", "--yes"}).status, 0);
    EXPECT_TRUE(machine.has("~/Code/\xff\xfe/node_modules/x"));
    EXPECT_FALSE(machine.has("~/Code/\xff\xff/node_modules/x"));
    EXPECT_EQ(run(machine, {"clean", "--only", id + "\uFFFD\uFFFD/node_modules", "--yes"}).status,
              0);
    EXPECT_FALSE(machine.has("~/Code/\xff\xfe/node_modules/x"));
}

TEST(CommandLine, ExplainsWhatMayBeRemovedAndWhy) {
    const FurnishedMachine machine;
    machine.link("~/.gradle", machine.path("~/Documents"));
    machine.link("~/.aws", machine.path("~/Sync/keys"));
    machine.text("~/Sync/keys/credentials", "x");
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
        {"~/Sync/keys/credentials", "protected", false, {}},
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

}  // namespace tidewell
