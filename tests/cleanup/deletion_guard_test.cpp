#include "cleanup/deletion_guard.h"

#include <gtest/gtest.h>
#include <sys/mount.h>

#include "cleanup/kept_entries.h"
#include "cleanup/kept_places.h"
#include "support/sample_machine.h"
#include "support/separate_process.h"

namespace tidewell {
namespace {

using test::enterOwnMountSpace;
using test::expectInSeparateProcess;
using test::SampleMachine;
using test::skipSeparateProcess;

TEST(DeletionGuard, DecidesByTheFirstRuleThatApplies) {
    struct Row {
        const char* path;
        DeletionRule rule;
    };
    Host host;
    host.home = "/home/ada";
    const auto kept = keptEntries(host);
    const std::vector<std::string> roots = {"/var/T", "/home/ada/.ssh/T", "/home/ada/Music/T"};
    for (const auto& [path, rule] : {
             Row{"/home/ada/.ssh", DeletionRule::protectedPath},
             Row{"/home/ada/.ssh/known_hosts", DeletionRule::protectedPath},
             Row{"/home/ada/.ssh/T/x", DeletionRule::protectedPath},
             Row{"/home/ada/.cache/huggingface/token", DeletionRule::protectedPath},
             Row{"/home/ada/.cache/huggingface/tokens", DeletionRule::openFolder},
             Row{"/home/ada/.sshd", DeletionRule::openFolder},
             Row{"/home/ada/.cargo/x/../credentials", DeletionRule::protectedPath},
             Row{"/home/ada//.gnupg/./", DeletionRule::protectedPath},
             Row{"/var/T", DeletionRule::deletableRoot},
             Row{"/var/T/x", DeletionRule::deletableRoot},
             Row{"/var/Tx", DeletionRule::outsideHome},
             Row{"/var/T/../x", DeletionRule::outsideHome},
             Row{"/home/ada/Music/T/x", DeletionRule::deletableRoot},
             Row{"/tmp/x", DeletionRule::outsideHome},
             Row{"/home/ada", DeletionRule::outsideHome},
             Row{"/home/ada/x/..", DeletionRule::outsideHome},
             Row{"/home/adam/x", DeletionRule::outsideHome},
             Row{"Library/Caches", DeletionRule::outsideHome},
             Row{"", DeletionRule::outsideHome},
             Row{"/home/ada/Library", DeletionRule::openFolder},
             Row{"/home/ada/documents/x", DeletionRule::openFolder},
             Row{"/home/ada/Documents", DeletionRule::personalFolder},
             Row{"/home/ada/Documents/report", DeletionRule::personalFolder},
             Row{"/home/ada/Documents/builds/x", DeletionRule::personalFolder},
             Row{"/home/ada/Sites/Node_modules", DeletionRule::personalFolder},
             Row{"/home/ada/Documents/node_modules/../x", DeletionRule::personalFolder},
             Row{"/home/ada/Documents/app/node_modules/left-pad", DeletionRule::buildFolder},
             Row{"/home/ada/Desktop/target", DeletionRule::buildFolder},
         })
        EXPECT_EQ(deletionRule(path, "/home/ada", roots, kept), rule) << path;
    EXPECT_EQ(deletionRule("/usr/lib", "/", {}, kept), DeletionRule::outsideHome);
    EXPECT_FALSE(allows(DeletionRule::protectedPath) || allows(DeletionRule::outsideHome) ||
                 allows(DeletionRule::personalFolder));
    EXPECT_TRUE(allows(DeletionRule::deletableRoot) && allows(DeletionRule::openFolder) &&
                allows(DeletionRule::buildFolder));
}

TEST(DeletionGuard, HasTheScratchFoldersOfTheMachineInTheirOrder) {
    Host host;
    EXPECT_TRUE(deletableRoots(host).empty());
    host.temporaryDirectory = "/var/./T/";
    EXPECT_EQ(deletableRoots(host), std::vector<std::string>{"/var/T"});
    host.userCacheDirectory = "/var/C";
    EXPECT_EQ(deletableRoots(host), (std::vector<std::string>{"/var/T", "/var/C"}));
}

TEST(DeletionGuard, AsksAgainForTheRealLocation) {
    const SampleMachine machine;
    machine.text("~/Documents/thesis/text", "x");
    machine.text("~/.ssh/id", "x");
    machine.text("~/keys/aws/credentials", "x");
    machine.text("/private/scratch/file", "x");
    machine.folder("~/Library/Caches");
    machine.link("~/.cache", machine.path("~/Documents"));
    machine.link("~/open", machine.path("~/.ssh"));
    machine.link("~/.aws", machine.path("~/keys/aws"));
    machine.link("~/elsewhere", machine.path("/private"));
    machine.link("~/up", machine.home());
    machine.link("/var/folders/zz/ada/T/documents", machine.path("~/Documents"));
    const DeletionGuard guard(machine.host());
    for (const auto* path : {"~/.cache/thesis", "~/open/id", "~/keys/aws", "~/keys/aws/credentials",
                             "~/elsewhere/scratch", "~/up/Documents", "~/missing/file",
                             "/var/folders/zz/ada/T/documents/thesis"})
        EXPECT_FALSE(guard.approve(machine.path(path))) << path;
    for (const auto* path : {"~/.cache", "~/open", "~/keys", "~/up/Library", "~/Library/missing",
                             "/var/folders/zz/ada/T", "/var/folders/zz/ada/T/documents"})
        EXPECT_TRUE(guard.approve(machine.path(path))) << path;
    using namespace std::string_literals;
    EXPECT_FALSE(guard.approve(machine.path("~/Documents\0/target"s)));
    const auto approved = guard.approve(machine.path("~/up/Library/x"));
    ASSERT_TRUE(approved);
    EXPECT_EQ(approved->named(), machine.path("~/up/Library/x"));
    EXPECT_EQ(approved->real(), machine.path("~/Library/x"));
}

TEST(DeletionGuard, KeepsAChildThatHoldsKeys) {
    const SampleMachine machine;
    machine.text("~/.config/gh/hosts", "x");
    machine.text("~/.config/composer/auth.json", "x");
    machine.text("~/.config/store/keys/id", "x");
    machine.folder("~/.config/other");
    machine.link("~/.gnupg", machine.path("~/.config/store/keys"));
    const DeletionGuard guard(machine.host());
    const auto folder = guard.approve(machine.path("~/.config"));
    ASSERT_TRUE(folder);
    const auto child = guard.childGuard(*folder);
    EXPECT_FALSE(child("gh") || child("composer") || child("store"));
    ASSERT_TRUE(child("other"));
    EXPECT_EQ(child("other")->real(), machine.path("~/.config/other"));
}

TEST(DeletionGuard, KnowsWhatMustStayByWhatItIs) {
    const SampleMachine machine;
    machine.text("~/disk/Sync/Documents/thesis", "x");
    machine.text("~/disk/Sync/Documents/app/node_modules/pad", "x");
    machine.text("~/disk/Sync/other", "x");
    machine.link("~/Documents", "disk/Sync/Documents");
    machine.link("~/.gradle", "Documents");
    machine.text("~/.cache/vault/id", "x");
    machine.text("~/.cache/vault/more/deep", "x");
    machine.link("~/.ssh/id", "../.cache/vault/id");
    machine.link("~/.ssh/more/keys", "../../.cache/vault/more");
    machine.link("~/Desktop", ".");
    machine.link("~/Music", "/");
    const DeletionGuard guard(machine.host());
    for (const auto* path : {"~/.gradle/thesis", "~/disk/Sync/Documents",
                             "~/disk/Sync/Documents/thesis", "~/disk/Sync/Documents/app"})
        EXPECT_EQ(guard.verdict(machine.path(path)), DeletionRule::personalFolder) << path;
    for (const auto* path : {"~/.cache/vault/id", "~/.cache/vault/more/deep"})
        EXPECT_EQ(guard.verdict(machine.path(path)), DeletionRule::protectedPath) << path;
    for (const auto* path : {"~/disk/Sync/Documents/app/node_modules", "~/disk/Sync/other",
                             "~/.cache/vault", "~/.gradle/app/node_modules"})
        EXPECT_TRUE(guard.approve(machine.path(path))) << path;
    const auto child = guard.childGuard(guard.approve(machine.path("~/disk")).value());
    EXPECT_FALSE(child("Sync")) << "Documents would go with it";
    EXPECT_FALSE(guard.childGuard(guard.approve(machine.path("~/.cache")).value())("vault"));
}

/// For the body of a separate process: a machine on which folders are mounted in other places.
struct MountedMachine : SampleMachine {
    ~MountedMachine() {
        for (const auto& place : places) ::umount2(place.c_str(), MNT_DETACH);
    }
    void mount(std::string_view from, std::string_view at) {
        folder(from);
        folder(at);
        places.push_back(path(at));
        ASSERT_EQ(::mount(path(from).c_str(), places.back().c_str(), nullptr, MS_BIND, nullptr), 0);
    }
    void hideMounts() {
        places.push_back("/proc");
        ASSERT_EQ(::mount("none", "/proc", "tmpfs", 0, "size=4k"), 0);
    }
    std::vector<std::string> places;
};

TEST(DeletionGuard, KnowsWhatMustStayWhereverItIsMounted) {
    expectInSeparateProcess([] {
        if (!enterOwnMountSpace()) skipSeparateProcess();
        MountedMachine machine;
        machine.text("~/Documents/thesis/app/build/x", "x");
        machine.mount("~/Documents", "~/.gradle");               // whole
        machine.mount("~/Documents/thesis", "~/.npm/_cacache");  // in part
        machine.mount("~/.cache/a/photos", "~/Pictures");        // the other way round
        machine.mount("~/.cache/b/reel", "~/Movies/reel");
        machine.mount("~/.config/c/keys", "~/.ssh");
        machine.mount("~", "~/.again");
        const DeletionGuard guard(machine.host());
        for (const auto* path : {"~/.gradle/thesis", "~/.npm/_cacache/text", "~/.cache/a/photos/x",
                                 "~/.cache/b/reel/x", "~/.again/Documents/thesis"})
            EXPECT_EQ(guard.verdict(machine.path(path)), DeletionRule::personalFolder) << path;
        EXPECT_EQ(guard.verdict(machine.path("~/.config/c/keys/id")), DeletionRule::protectedPath);
        for (const auto* path : {"~/.gradle/thesis/app/build/x", "~/.npm/_cacache/app/build",
                                 "~/.npm/other", "~/.again/.npm/other"})
            EXPECT_TRUE(guard.approve(machine.path(path))) << path;
        const auto caches = guard.childGuard(guard.approve(machine.path("~/.cache")).value());
        EXPECT_FALSE(caches("a") || caches("b"));
        EXPECT_FALSE(guard.childGuard(guard.approve(machine.path("~/.config")).value())("c"));
        const auto again = guard.childGuard(guard.approve(machine.path("~/.again")).value());
        EXPECT_FALSE(again("Documents") || again(".cache"));
    });
}

TEST(DeletionGuard, OpensNoOtherMountWhereTheSystemHidesThem) {
    expectInSeparateProcess([] {
        if (!enterOwnMountSpace()) skipSeparateProcess();
        MountedMachine machine;
        machine.text("~/.npm/x", "x");
        machine.mount("~/Sync/Documents", "~/.gradle");
        machine.link("~/Documents", "Sync/Documents");
        machine.mount("~/Sync/Documents/part", "~/.cargo");
        machine.hideMounts();
        const DeletionGuard guard(machine.host());
        EXPECT_FALSE(guard.approve(machine.path("~/.gradle/thesis")));
        EXPECT_FALSE(guard.approve(machine.path("~/.cargo/registry")));
        const auto names = KeptPlaces(machine.host()).namesOf(machine.path("~/.gradle/thesis"));
        EXPECT_EQ(names.back(), machine.path("~/Documents/thesis"))
            << "the same folder, seen alone";
        EXPECT_TRUE(guard.approve(machine.path("~/.npm/x")));
        machine.mount("~/.npm", "~/Music");
        EXPECT_FALSE(guard.approve(machine.path("~/.npm/x")));
    });
}

TEST(DeletionGuard, OpensNothingWhereItCannotTellWhatALinkAmongTheKeysLeadsTo) {
    const SampleMachine machine;
    machine.text("~/.npm/x", "x");
    machine.link("~/.ssh/gone", "../nowhere");
    machine.link("~/.ssh/circle", "circle");
    EXPECT_TRUE(DeletionGuard(machine.host()).approve(machine.path("~/.npm/x")));
    // Longer than a path may be, as a whole.
    std::string half;
    for (int folder = 0; folder < 12; ++folder) half += "/" + std::string(200, 'x');
    machine.folder("~/.npm/deep" + half);
    machine.link("~/.npm/half", "deep" + half);
    machine.text("~/.npm/half" + half + "/key", "k");
    machine.link("~/.ssh/key", "../.npm/half" + half + "/key");
    EXPECT_FALSE(DeletionGuard(machine.host()).approve(machine.path("~/.npm/x")));
    EXPECT_FALSE(DeletionGuard(machine.host()).approve(machine.path("~/.npm")));
}

TEST(DeletionGuard, OpensNothingByAScratchFolderAroundOrInPersonalFolders) {
    const SampleMachine machine;
    machine.text("~/Documents/thesis/text", "x");
    auto host = machine.host();
    for (const auto* scratch : {"~", "/Users", "~/Documents", "~/Documents/thesis"}) {
        host.temporaryDirectory = machine.path(scratch);
        const DeletionGuard guard(host);
        EXPECT_FALSE(guard.approve(machine.path("~/Documents/thesis/text"))) << scratch;
        EXPECT_FALSE(guard.approve(machine.home())) << scratch;
    }
}

}  // namespace
}  // namespace tidewell
