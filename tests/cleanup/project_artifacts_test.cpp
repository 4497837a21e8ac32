#include "cleanup/project_artifacts.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/sample_machine.h"

namespace tidewell {

namespace {

using test::SampleMachine;

std::vector<std::string> foundPaths(const SampleMachine& machine) {
    std::vector<std::string> paths;
    for (const auto& target : findProjectArtifacts(machine.host()))
        paths.emplace_back(machine.host().relativeToHome(target.paths.front()));
    return paths;
}

using Paths = std::vector<std::string>;

}  // namespace

TEST(ProjectArtifacts, AreFoundSortedByNameAndThenByPath) {
    const SampleMachine machine;
    machine.file("~/Code/b/node_modules/x/node_modules/y");
    machine.file("~/Code/a/node_modules/x");
    machine.file("~/Code/a/.venv/bin/python");
    machine.file("~/Code/a/Pods/x");
    machine.file("~/Code/a/DerivedData/x");
    EXPECT_EQ(foundPaths(machine),
              (Paths{"Code/a/.venv", "Code/a/DerivedData", "Code/a/node_modules",
                     "Code/b/node_modules", "Code/a/Pods"}));
}

TEST(ProjectArtifacts, CountBuildFoldersOnlyBesideAProjectMarker) {
    const SampleMachine machine;
    machine.file("~/Documents/build/novel.txt");
    machine.file("~/Documents/app/build/app");
    machine.file("~/Documents/app/Makefile");
    machine.file("~/Code/ios/build/app");
    machine.folder("~/Code/ios/App.xcodeproj");
    machine.file("~/Code/engine/target/debug");
    machine.file("~/Code/engine/Cargo.toml");
    machine.file("~/Code/other/target/debug");
    machine.file("~/Code/other/cargo.toml");
    const auto targets = findProjectArtifacts(machine.host());
    ASSERT_EQ(targets.size(), 3U);
    EXPECT_EQ(foundPaths(machine),
              (Paths{"Code/ios/build", "Documents/app/build", "Code/engine/target"}));
    for (const auto& target : targets) EXPECT_EQ(target.safety, SafetyLevel::caution);
}

/// Where Linux machines differ: more names, each only in a project, and in the user's own folders
/// no name without one.
TEST(ProjectArtifacts, CountMoreOnLinuxMachinesAndOnlyInProjects) {
    const SampleMachine machine(System::linux);
    const char* folders[] = {".ruff_cache", ".nox",         ".svelte-kit",      ".godot",
                             "zig-out",     ".zig-cache",   ".stack-work",      "dist-newstyle",
                             "build",       "node_modules", "cmake-build-debug"};
    const std::pair<const char*, const char*> projects[] = {{"Code/app", "pom.xml"},
                                                            {"Documents/app", "project.godot"},
                                                            {"Documents/notes", "notes.txt"}};
    for (const auto& [project, marker] : projects) {
        machine.file("~/" + std::string(project) + "/" + marker);
        for (const auto* folder : folders)
            machine.file("~/" + std::string(project) + "/" + folder + "/x");
    }
    machine.file("~/Documents/x/venv/novel.txt");
    machine.file("~/Code/x/venv/bin/python");
    machine.file("~/Code/x/zig-out/x");
    machine.file("~/Videos/app/node_modules/x");
    machine.file("~/snap/app/12/node_modules/x");
    const auto paths = foundPaths(machine);
    // In the user's own folders only "build" and "node_modules" count, which all systems share.
    EXPECT_EQ(paths.size(), std::size(folders) + 2 + 1);
    EXPECT_EQ(std::ranges::count(paths, "Code/x/venv"), 1);
    for (const auto& path : paths)
        EXPECT_TRUE(path.starts_with("Code/") || path.starts_with("Documents/app/")) << path;
}

TEST(ProjectArtifacts, AreNotLookedForWherePeopleKeepNoProjects) {
    const SampleMachine machine;
    for (const auto* folder : {"~/Library", "~/Applications", "~/Movies", "~/Music", "~/Pictures",
                               "~/Public", "~/Sites", "~/.cache", "~/.Trash", "~/Code/.hidden",
                               "~/Code/Thing.app", "~/Code/Thing.FRAMEWORKS.bundle"})
        machine.file(std::string(folder) + "/app/node_modules/x");
    machine.file("~/.venv/bin/python");
    machine.file("~/Downloads/app/node_modules/x");
    machine.file("~/Desktop/app/node_modules/x");
    machine.file("~/Code/.git/node_modules/x");
    EXPECT_EQ(foundPaths(machine),
              (Paths{"Desktop/app/node_modules", "Downloads/app/node_modules"}));
}

TEST(ProjectArtifacts, EndAtTheDepthLimitAndAtLinks) {
    const SampleMachine machine;
    machine.file("~/1/2/3/4/5/6/venv/python");
    machine.file("~/1/2/3/4/5/6/7/venv/python");
    machine.link("~/linked", machine.path("~/1/2/3/4/5/6"));
    machine.link("~/1/node_modules", machine.path("~/1/2"));
    machine.text("~/1/Pods", "a file of that name");
    EXPECT_EQ(foundPaths(machine), Paths{"1/2/3/4/5/6/venv"});
}

TEST(ProjectArtifacts, BecomeTargetsThatSayWhatTheyAreAndWhere) {
    const SampleMachine machine;
    const auto path = machine.path("~/Code/app/node_modules");
    const auto modules = artifactTarget("node_modules", path, machine.host());
    EXPECT_EQ(modules.id, "artifact:node_modules:" + path);
    EXPECT_EQ(modules.title, "node_modules · app");
    EXPECT_EQ(modules.detail,
              "JavaScript dependencies. Re-created by npm / yarn / pnpm install. In Code/app.");
    EXPECT_EQ(modules.safety, SafetyLevel::safe);
    EXPECT_EQ(modules.category, CleanupCategory::developerCaches);
    EXPECT_EQ(modules.paths, std::vector{path});
    const auto tox = artifactTarget(".tox", "/elsewhere/app/.tox", machine.host());
    EXPECT_EQ(tox.detail, "Build artifact. Re-created on the next build. In /elsewhere/app.");
}

}  // namespace tidewell
