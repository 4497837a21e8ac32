// The command line on a machine that has next to nothing left.

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/user_defaults.h"
#include "support/program_run.h"
#include "support/sample_machine.h"

namespace tidewell {

namespace {

using test::ProgramRun;
using test::SampleMachine;

/// Under a shell that first takes something away.
ProgramRun runUnder(const std::string& limit, const SampleMachine& machine) {
    return test::runProgram("/bin/sh", {"-c", limit + R"( || exit 77; exec "$@")", "sh",
                                        TIDEWELL_CLI, "--root", machine.root(), "clean", "--yes"});
}

TEST(Scarcity, ACleanNeedsNoThreads) {
    const SampleMachine machine;
    for (int folder = 0; folder < 200; ++folder)
        machine.file("~/.npm/" + std::to_string(folder) + "/one", 4096);
    // Every thread would want a stack larger than what there are addresses for.
    const auto ended = runUnder("ulimit -s 137438953472", machine);
    if (ended.status == 77) GTEST_SKIP() << "the stack's size may not be changed here";
    EXPECT_EQ(ended.status, 0) << ended.output << ended.errors;
    EXPECT_EQ(ended.errors, "");
    EXPECT_FALSE(std::filesystem::exists(machine.path("~/.npm/0")));
    EXPECT_EQ(UserDefaults(machine.host().configurationDirectory).integer("totalFreedBytes"),
              200 * 4096);
}

TEST(Scarcity, ACleanEndsByItselfWhereNothingCanBeWritten) {
    const SampleMachine machine;
    machine.file("~/.npm/one", 4096);
    const auto ended = runUnder("ulimit -f 0", machine);
    EXPECT_EQ(ended.status, 0) << ended.output;
    EXPECT_FALSE(machine.has("~/.npm/one"));
}

}  // namespace

}  // namespace tidewell
