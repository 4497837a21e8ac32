#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "apps/uninstall_guard.h"
#include "cleanup/deletion_guard.h"
#include "deepscan/big_item_trash_guard.h"
#include "platform/removal_lock.h"
#include "platform/trial_ground.h"
#include "support/program_run.h"
#include "support/sample_machine.h"

namespace tidewell {

namespace {

using test::ProgramRun;
using test::SampleMachine;

ProgramRun selfcheck(const SampleMachine& machine, const std::string& place) {
    return test::runProgram(TIDEWELL_CLI,
                            {"--root", machine.root(), "selfcheck", "--on", machine.path(place)});
}

}  // namespace

TEST(Selfcheck, PassesHereAndLeavesNothingButWhatItDidNotMake) {
    const SampleMachine machine(System::linux);
    machine.folder("~/.cache");
    auto ground = [&] { return TrialGround::makeIn(machine.path("~/.cache")).ground; };
    ASSERT_TRUE(ground()->file("left/by/a/run", "that was killed"));
    const auto held = ground();
    ASSERT_TRUE(held->file("in/use", "by a run"));
    machine.text("~/.cache/tidewell-selfcheck-1/thesis", "somebody's");
    // A copy has the mark of what it was copied from.
    const auto copy = machine.path("~/.cache/tidewell-selfcheck-2");
    std::filesystem::copy(held->path(), copy, std::filesystem::copy_options::recursive);

    const auto ended = selfcheck(machine, "~/.cache");
    EXPECT_EQ(ended.status, 0) << ended.output << ended.errors;
    EXPECT_EQ(machine.contentOf("~/.cache/tidewell-selfcheck-1/thesis"), "somebody's");
    EXPECT_TRUE(std::filesystem::exists(copy + "/in/use"));
    EXPECT_TRUE(std::filesystem::exists(held->path() + "/in/use"));
    const std::filesystem::directory_iterator left(machine.path("~/.cache"));
    EXPECT_EQ(std::distance(begin(left), end(left)), 3);
}

/// Everything that removes asks for this: what a scan finds stays offered, and nothing of it goes.
TEST(RemovalLock, HoldsEveryGuardUntilThisVersionHasPassedOnThisSystem) {
    const SampleMachine machine;
    machine.file("~/.npm/one");
    machine.file("~/Downloads/Setup/disk.dmg");
    machine.application("/Applications/Notes.app", {{"CFBundleName", "Notes"}});
    auto host = machine.host();
    const auto isFree = [&host] {
        host.removals = removalsOn(host, MakersTrial::outstanding);
        BigItem item;
        item.id = host.locate("~/Downloads/Setup/disk.dmg");
        const std::vector<bool> approved = {
            DeletionGuard(host).approve(host.locate("~/.npm")).has_value(),
            BigItemTrashGuard(host).approve(item).has_value(),
            UninstallGuard(host).approve(host.locate("/Applications/Notes.app")).has_value()};
        EXPECT_EQ(std::ranges::count(approved, host.mayRemove()), 3);
        return host.mayRemove();
    };
    const auto file = std::string("~/.config/tidewell/selfcheck/defaults.json");
    EXPECT_FALSE(isFree());
    for (const auto* content : {"", "true", "{\"passed\": true}", "[[[[", "\0"}) {
        machine.text(file, content);
        EXPECT_FALSE(isFree()) << content;
    }
    machine.remove(file);
    machine.folder(file);
    EXPECT_EQ(unlockRemovals(host), UserDefaults::Written::no);
    EXPECT_FALSE(isFree());
    machine.remove("~/.config/tidewell");
    EXPECT_EQ(unlockRemovals(host), UserDefaults::Written::yes);
    EXPECT_TRUE(isFree());
    host.ownBundle.version += ".1";
    EXPECT_FALSE(isFree());
    EXPECT_EQ(removalsOn(host, MakersTrial::done), Removals::free);
}

}  // namespace tidewell
