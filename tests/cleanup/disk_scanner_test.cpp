#include "cleanup/disk_scanner.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <functional>

#include "cleanup/screens/review_content.h"
#include "cleanup/target_catalogue.h"
#include "platform/path_text.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell {

namespace {

using test::SampleMachine;

CleanupTarget rowOf(const SampleMachine& machine, std::string_view id) {
    const auto targets = cleanupCatalogue(machine.host());
    return *std::ranges::find(targets, id, &CleanupTarget::id);
}

CleanupTarget targetAt(std::vector<std::string> paths) {
    return {.id = "test", .title = "Test", .detail = "", .paths = std::move(paths)};
}

CleanupItem itemOf(std::vector<std::string> paths, ByteCount size) {
    return {.target = targetAt(paths), .resolvedPaths = paths, .sizeBytes = size};
}

}  // namespace

TEST(DiskScanner, MeasuresOnlyThePathsThatHoldSomething) {
    const SampleMachine machine;
    const DiskScanner scanner(machine.host());
    machine.file("~/.gradle/caches/a", 8192);
    machine.file("~/.gradle/caches/.hidden/b", 4096);
    machine.folder("~/.gradle/wrapper/dists/empty/folders");
    const auto item = scanner.measure(rowOf(machine, "gradle-caches"));
    ASSERT_TRUE(item);
    EXPECT_EQ(item->resolvedPaths, std::vector{machine.path("~/.gradle/caches")});
    EXPECT_EQ(item->sizeBytes, 12288);
    EXPECT_TRUE(item->isSelected);
}

TEST(DiskScanner, FindsNothingInWhatIsMissingEmptyOrALink) {
    const SampleMachine machine;
    const DiskScanner scanner(machine.host());
    machine.file("~/Documents/big", 1 << 20);
    machine.folder("~/.npm/only/folders");
    machine.link("~/.pub-cache/link", machine.path("~/Documents/big"));
    machine.link("~/.pnpm-store", machine.path("~/Documents"));
    machine.link("~/.node-gyp", "/does/not/exist");
    for (const auto* id : {"npm-cache", "pub-cache", "pnpm-store", "node-gyp-cache", "trash"})
        EXPECT_FALSE(scanner.measure(rowOf(machine, id))) << id;
    EXPECT_FALSE(scanner.measure(targetAt({})));
}

TEST(DiskScanner, LeavesCautionUntickedHoweverLargeItIs) {
    const SampleMachine machine;
    machine.file("~/.Trash/movie", 1 << 20);
    const auto item = DiskScanner(machine.host()).measure(rowOf(machine, "trash"));
    ASSERT_TRUE(item);
    EXPECT_FALSE(item->isSelected);
}

TEST(DiskScanner, SweepsWhatNoOtherRowClaims) {
    const SampleMachine machine;
    const DiskScanner scanner(machine.host());
    for (const auto* entry : {"huggingface/hub/model", "torch/hub/one", "pip/wheel", ".hidden/one"})
        machine.file(std::string("~/.cache/") + entry);
    machine.folder("~/.cache/empty");
    machine.link("~/.cache/linked", machine.path("~/.cache/pip"));
    for (const auto* entry : {"Google/Chrome/one", "Google/DriveFS/two", "Unity/other/three",
                              "com.unity3d.UnityEditor/four", "CloudKit/five", "com.example/six"})
        machine.file(std::string("~/Library/Caches/") + entry);

    const auto tools = scanner.measure(rowOf(machine, "cli-tool-caches"));
    ASSERT_TRUE(tools);
    EXPECT_EQ(tools->resolvedPaths,
              (std::vector{machine.path("~/.cache/.hidden"), machine.path("~/.cache/pip")}));
    const auto apps = scanner.measure(rowOf(machine, "other-app-caches"));
    ASSERT_TRUE(apps);
    EXPECT_EQ(apps->resolvedPaths, std::vector{machine.path("~/Library/Caches/com.example")});
}

TEST(DiskScanner, ClaimsAWholeTopEntryForARowThatLiesDeeper) {
    const SampleMachine machine;
    const DiskScanner scanner(machine.host());
    const auto claimed = scanner.sweepExclusions("~/Library/Caches/");
    for (const auto* name : {"Google", "Unity", "com.unity3d.UnityEditor", "pip", "Microsoft Edge"})
        EXPECT_TRUE(claimed.contains(name)) << name;
    EXPECT_FALSE(claimed.contains("com.example"));
    EXPECT_TRUE(scanner.sweepExclusions("~/.cache").empty());
}

TEST(DiskScanner, SweepsNothingThroughALink) {
    const SampleMachine machine;
    machine.file("~/Documents/thesis/chapter.tex");
    machine.link("~/.cache", machine.path("~/Documents/thesis"));
    EXPECT_FALSE(DiskScanner(machine.host()).measure(rowOf(machine, "cli-tool-caches")));
}

TEST(DiskScanner, EmptiesFoldersAndKeepsThemselves) {
    const SampleMachine machine;
    const DiskScanner scanner(machine.host());
    machine.file("~/.npm/_cacache/one", 8192);
    machine.file("~/.npm/.hidden", 4096);
    const auto item = scanner.measure(rowOf(machine, "npm-cache"));
    const auto result = scanner.clean(*item);
    EXPECT_EQ(result.freedBytes, 12288);
    EXPECT_FALSE(result.failedTitle);
    EXPECT_TRUE(machine.has("~/.npm"));
    EXPECT_FALSE(machine.has("~/.npm/_cacache"));
    EXPECT_FALSE(machine.has("~/.npm/.hidden"));
}

TEST(DiskScanner, CountsAsFreedWhatASecondMeasureShowsToBeGone) {
    const SampleMachine machine;
    const DiskScanner scanner(machine.host());
    machine.file("~/.npm/one", 8192);
    const auto path = machine.path("~/.npm");
    EXPECT_EQ(scanner.clean(itemOf({path}, 100000)).freedBytes, 100000);  // shrank meanwhile
    machine.file("~/Documents/kept", 8192);
    const auto refused = machine.path("~/Documents/kept");
    EXPECT_EQ(scanner.clean(itemOf({refused}, 4096)).freedBytes, 0);  // grew meanwhile
    EXPECT_EQ(scanner.clean(itemOf({machine.path("~/.gone")}, 10)).freedBytes, 10);
    EXPECT_EQ(scanner.clean(itemOf({}, 10)).freedBytes, 10);
}

TEST(DiskScanner, CountsWhatRemovingFreesWhereFilesHaveSeveralNames) {
    for (const auto system : {System::macOS, System::linux}) {
        const bool isTrue = system == System::linux;
        const SampleMachine machine;
        auto host = machine.host();
        host.system = system;
        const DiskScanner scanner(host);
        machine.file("~/.npm/plain", 8192);
        machine.file("~/.npm/inside", 4096);
        machine.file("~/.npm/across", 16384);
        machine.folder("~/.gradle");
        for (const auto& [from, to] :
             {std::pair{"~/.npm/inside", "~/.npm/again"}, {"~/.npm/across", "~/.gradle/across"}})
            std::filesystem::create_hard_link(machine.path(from), machine.path(to));
        const auto first = scanner.measure(targetAt({machine.path("~/.npm")}));
        const auto second = scanner.measure(targetAt({machine.path("~/.gradle")}));
        ASSERT_TRUE(first && second);
        EXPECT_EQ(first->sizeBytes, isTrue ? 12288 : 32768);
        EXPECT_EQ(first->sharedBytes, isTrue ? 16384 : 0);
        EXPECT_EQ(second->sizeBytes, isTrue ? 0 : 16384);
        EXPECT_EQ(itemDetail(*first),
                  isTrue ? " 16 KB more is shared with other files and would stay." : "");
        EXPECT_EQ(scanner.clean(*first).freedBytes, isTrue ? 12288 : 32768);
        EXPECT_EQ(scanner.clean(*second).freedBytes, 16384) << "now its last name";
    }
}

/// What cannot be seen any more may well be there.
TEST(DiskScanner, CountsNothingAsFreedThatItCannotRead) {
    struct Case {
        const char* what;
        std::function<void(const SampleMachine&)> between;  ///< the scan and the clean
        ByteCount freed;
        const char* path = "~/.npm";
    };
    const auto close = [](const char* folder, mode_t mode) {
        return [=](const SampleMachine& machine) {
            ASSERT_EQ(::chmod(machine.path(folder).c_str(), mode), 0);
        };
    };
    const Case cases[] = {
        {"a parent that may not be searched", close("~/.m2", 0), 0, "~/.m2/repository"},
        {"the folder itself", close("~/.npm", 0), 0},
        {"a folder in it", close("~/.npm/in", 0), 0},
        {"a folder in it that tells its names alone", close("~/.npm/in", 0400), 0},
        {"a folder that could not be read at the scan either", close("~/.npm/never", 0), 12288},
        {"a way in circles",
         [](const SampleMachine& machine) {
             machine.remove("~/.m2");
             machine.link("~/.m2", machine.path("~/.m2"));
         },
         0, "~/.m2/repository"},
        {"no descriptor to be had", [](const SampleMachine&) { test::limitDescriptors(3); }, 0},
    };
    for (const auto& one : cases)
        test::expectInSeparateProcess([&one] {
            test::becomeOrdinaryUser();
            const SampleMachine machine;
            for (const auto* file :
                 {"~/.npm/in/a", "~/.npm/b", "~/.npm/c", "~/.npm/never/seen", "~/.m2/repository/a"})
                machine.file(file);
            ASSERT_EQ(::chmod(machine.path("~/.npm/never").c_str(), 0), 0);
            const DiskScanner scanner(machine.host());
            const auto item = scanner.measure(targetAt({machine.path(one.path)}));
            ASSERT_TRUE(item);
            one.between(machine);
            const auto result = scanner.clean(*item);
            test::limitDescriptors(1024);  // which the removal of the machine needs
            EXPECT_EQ(result.freedBytes, one.freed) << one.what;
            EXPECT_EQ(result.failedTitle, "Test") << one.what;
        });
}

TEST(DiskScanner, RefusesWhatTheGuardRefusesAndGoesOn) {
    const SampleMachine machine;
    const DiskScanner scanner(machine.host());
    machine.file("~/Documents/report");
    machine.file("~/Documents/app/node_modules/left-pad/index.js");
    machine.file("~/.ssh/known_hosts");
    const auto result = scanner.clean(
        itemOf({machine.path("~/Documents/report"), machine.path("~/.ssh/known_hosts"),
                machine.path("~/Documents/app/node_modules")},
               12288));
    EXPECT_EQ(result.freedBytes, 4096);
    EXPECT_EQ(result.failedTitle, "Test");
    EXPECT_TRUE(machine.has("~/Documents/report"));
    EXPECT_TRUE(machine.has("~/.ssh/known_hosts"));
    EXPECT_FALSE(machine.has("~/Documents/app/node_modules/left-pad"));
}

/// A key that stands in a folder which a list named is kept, and what lies beside it goes.
TEST(DiskScanner, AsksTheGuardForEveryChild) {
    const SampleMachine machine;
    machine.text("~/.gradle/gradle.properties", "signing.password=secret");
    machine.file("~/.gradle/caches/one");
    const auto result =
        DiskScanner(machine.host()).clean(itemOf({machine.path("~/.gradle")}, 4096));
    EXPECT_EQ(result.failedTitle, "Test");
    EXPECT_EQ(machine.contentOf("~/.gradle/gradle.properties"), "signing.password=secret");
    EXPECT_FALSE(machine.has("~/.gradle/caches"));
}

/// The list was made while ~/.gradle was a folder; now it leads into the user's own files.
TEST(DiskScanner, LosesNothingThroughALinkThatCameAfterTheScan) {
    const SampleMachine machine;
    machine.file("~/Documents/thesis/caches/chapter.tex");
    machine.link("~/.gradle", machine.path("~/Documents/thesis"));
    const auto path = machine.path("~/.gradle/caches");
    const auto result = DiskScanner(machine.host()).clean(itemOf({path}, 4096));
    EXPECT_EQ(result.failedTitle, "Test");
    EXPECT_EQ(result.freedBytes, 0);
    EXPECT_TRUE(machine.has("~/Documents/thesis/caches/chapter.tex"));
}

TEST(DiskScanner, RemovesAFileAndNotWhatALinkPointsTo) {
    const SampleMachine machine;
    const DiskScanner scanner(machine.host());
    machine.file("~/Library/Caches/com.example/file");
    machine.file("~/Documents/precious");
    machine.link("~/Library/Caches/com.example/link", machine.path("~/Documents"));
    machine.file("~/Library/Caches/single");
    const auto result = scanner.clean(itemOf(
        {machine.path("~/Library/Caches/com.example"), machine.path("~/Library/Caches/single")},
        8192));
    EXPECT_FALSE(result.failedTitle);
    EXPECT_EQ(result.freedBytes, 8192);
    EXPECT_FALSE(machine.has("~/Library/Caches/single"));
    EXPECT_FALSE(machine.has("~/Library/Caches/com.example/link"));
    EXPECT_TRUE(machine.has("~/Documents/precious"));
}

}  // namespace tidewell
