#include "platform/process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <future>
#include <thread>

#include "support/sample_machine.h"

namespace tidewell::test {

namespace {

using namespace std::chrono_literals;

class Process : public testing::Test {
 protected:
    /// Whatever a test does, no tool may be left behind unreaped.
    void TearDown() override {
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
        EXPECT_EQ(errno, ECHILD);
    }

    std::optional<ToolRun> run(std::string_view script,
                               const std::vector<std::string>& arguments = {},
                               ToolOutput output = ToolOutput::keep) const {
        machine_.tool("/tool", script);
        return runTool(machine_.path("/tool"), arguments, output);
    }

    SampleMachine machine_;
};

}  // namespace

TEST_F(Process, GivesTheOutputAndTheExitStatus) {
    const auto good = run("printf '%s|' \"$@\"", {"a b", "", "$HOME", "*"});
    ASSERT_TRUE(good);
    EXPECT_EQ(good->exitStatus, 0);
    EXPECT_EQ(good->output, "a b||$HOME|*|");

    const auto bad = run("echo fine; exit 3");
    ASSERT_TRUE(bad);
    EXPECT_EQ(bad->exitStatus, 3);
    EXPECT_EQ(bad->output, "fine\n");

    const auto killed = run("echo before; kill -KILL $$");
    ASSERT_TRUE(killed);
    EXPECT_EQ(killed->exitStatus, std::nullopt);
}

TEST_F(Process, WhatCannotBeStartedIsAbsent) {
    machine_.text("/notes", "#!/bin/sh\n");
    machine_.text("/nothing", "neither a program nor a script");
    machine_.text("/orphan", "#!/no/such/interpreter\n");
    for (const auto* executable : {"/nothing", "/orphan"})
        ASSERT_EQ(::chmod(machine_.path(executable).c_str(), 0755), 0);
    for (const auto* path : {"/missing", "/notes", "/nothing", "/orphan", "/Applications"})
        for (const auto output : {ToolOutput::keep, ToolOutput::discard})
            EXPECT_FALSE(runTool(machine_.path(path), {}, output)) << path;
}

TEST_F(Process, OutputLargerThanAPipeIsReadWhole) {
    const auto run = this->run("head -c 3000000 /dev/zero; head -c 3000000 /dev/zero >&2");
    ASSERT_TRUE(run);
    EXPECT_EQ(run->output, std::string(3'000'000, '\0'));
    const auto discarded = this->run("head -c 3000000 /dev/zero; exit 4", {}, ToolOutput::discard);
    ASSERT_TRUE(discarded);
    EXPECT_EQ(discarded->exitStatus, 4);
    EXPECT_EQ(discarded->output, "");
}

TEST_F(Process, AToolFindsNothingOnItsStandardStreamsAndTheEnvironmentAsItIs) {
    const int ownInput = ::dup(STDIN_FILENO);
    const int other = ::open(machine_.root().c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::dup2(other, STDIN_FILENO), STDIN_FILENO);
    ::setenv("TIDEWELL_TEST_VARIABLE", "kept", 1);
    const auto run = this->run(
        "[ /dev/fd/0 -ef /dev/null ] && [ /dev/fd/2 -ef /dev/null ] && "
        "echo noise >&2 && echo $TIDEWELL_TEST_VARIABLE");
    ::unsetenv("TIDEWELL_TEST_VARIABLE");
    ::dup2(ownInput, STDIN_FILENO);
    ::close(ownInput);
    ::close(other);
    ASSERT_TRUE(run);
    EXPECT_EQ(run->output, "kept\n");
}

TEST_F(Process, AToolBeginsWithNoSignalBlockedOrIgnored) {
    sigset_t terminate;
    sigset_t before;
    sigemptyset(&terminate);
    sigaddset(&terminate, SIGTERM);
    ASSERT_EQ(::pthread_sigmask(SIG_BLOCK, &terminate, &before), 0);
    auto* const handler = ::signal(SIGPIPE, SIG_IGN);
    const auto terminated = run("kill -TERM $$; exit 5");
    const auto broken = run("kill -PIPE $$; exit 5");
    ::signal(SIGPIPE, handler);
    ASSERT_EQ(::pthread_sigmask(SIG_SETMASK, &before, nullptr), 0);
    for (const auto& ended : {terminated, broken}) {
        ASSERT_TRUE(ended);
        EXPECT_EQ(ended->exitStatus, std::nullopt);
    }
}

TEST_F(Process, SignalsThatArriveMeanwhileDisturbNothing) {
    struct sigaction interrupt = {};
    struct sigaction before = {};
    interrupt.sa_handler = [](int) {};
    ASSERT_EQ(::sigaction(SIGALRM, &interrupt, &before), 0);
    const itimerval often = {.it_interval = {0, 500}, .it_value = {0, 500}};
    ASSERT_EQ(::setitimer(ITIMER_REAL, &often, nullptr), 0);
    const auto run = this->run(
        "for i in 1 2 3 4; do head -c 500000 /dev/zero; done; exec >&-; "
        "i=0; while [ $i -lt 30000 ]; do i=$((i + 1)); done; exit 6");
    const itimerval never = {};
    ::setitimer(ITIMER_REAL, &never, nullptr);
    ::sigaction(SIGALRM, &before, nullptr);
    ASSERT_TRUE(run);
    EXPECT_EQ(run->output.size(), 2'000'000U);
    EXPECT_EQ(run->exitStatus, 6);
}

using Clock = std::chrono::steady_clock;

TEST_F(Process, AToolIsOverWhenItHasEndedWhateverItLeavesRunning) {
    const auto begin = Clock::now();
    const auto run = this->run("sleep 30 & echo $!; exit 7");
    EXPECT_LT(Clock::now() - begin, 20s);
    ASSERT_TRUE(run);
    EXPECT_EQ(run->exitStatus, 7);
    const auto left = static_cast<pid_t>(std::stol(run->output));
    EXPECT_EQ(::kill(left, SIGKILL), 0) << "it went on undisturbed";
}

TEST_F(Process, EndlessOutputIsCutAndAnEndlessToolEndsAtItsLimit) {
    const auto talking = run("exec yes");
    ASSERT_TRUE(talking);
    EXPECT_EQ(talking->output.size(), longestToolOutput);
    EXPECT_EQ(talking->exitStatus, std::nullopt);

    machine_.tool("/tool", "echo begun; sleep 30; echo done");
    for (const auto output : {ToolOutput::keep, ToolOutput::discard}) {
        const auto begin = Clock::now();
        const auto hanging = runTool(machine_.path("/tool"), {}, output, 200ms);
        EXPECT_LT(Clock::now() - begin, 20s);
        ASSERT_TRUE(hanging);
        EXPECT_EQ(hanging->exitStatus, std::nullopt);
        EXPECT_EQ(hanging->output, output == ToolOutput::keep ? "begun\n" : "");
    }
}

TEST_F(Process, HowAToolEndsIsKnownAlsoWhereTheParentWantsToKnowOfNoChild) {
    auto* const handler = ::signal(SIGCHLD, SIG_IGN);
    const auto run = this->run("sh -c 'exit 4'; exit $?");
    ::signal(SIGCHLD, handler);
    ASSERT_TRUE(run);
    EXPECT_EQ(run->exitStatus, 4);
}

TEST_F(Process, AToolInheritsNoDescriptorOfAnotherRun) {
    const auto up = machine_.path("/up");
    const auto go = machine_.path("/go");
    ASSERT_EQ(::mkfifo(up.c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo(go.c_str(), 0600), 0);
    machine_.tool("/patient", "echo up > \"$1\"; read line < \"$2\"; echo done");
    const auto patient = machine_.path("/patient");
    auto waiting = std::async(std::launch::async, [&] {
        return runTool(patient, {up, go}, ToolOutput::keep);
    });
    std::string line;
    std::getline(std::ifstream(up), line);
    const auto alone = run("for d in 3 4 5 6 7 8 9; do [ -p /dev/fd/$d ] && echo $d; done; exit 0");
    std::ofstream(go) << "go\n";
    ASSERT_TRUE(alone);
    EXPECT_EQ(alone->output, "");
    const auto waited = waiting.get();
    ASSERT_TRUE(waited);
    EXPECT_EQ(waited->output, "done\n");
}

TEST_F(Process, ManyThreadsRunToolsAtOnce) {
    machine_.tool("/echo", "echo \"$1\"; exit \"$2\"");
    const auto tool = machine_.path("/echo");
    std::vector<std::future<int>> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.push_back(std::async(std::launch::async, [&tool, thread] {
            int right = 0;
            for (int i = 0; i < 10; ++i) {
                const auto text = std::to_string(thread * 100 + i);
                const auto run = runTool(tool, {text, std::to_string(i)}, ToolOutput::keep);
                right += run && run->output == text + "\n" && run->exitStatus == i ? 1 : 0;
            }
            return right;
        }));
    for (auto& thread : threads) EXPECT_EQ(thread.get(), 10);
}

}  // namespace tidewell::test
