#include <gtest/gtest.h>

#include <filesystem>

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

}  // namespace tidewell
