#include "platform/running_applications.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "platform/memory.h"
#include "platform/posix/process_table.h"
#include "support/child_process.h"
#include "support/running_program.h"
#include "support/sample_machine.h"

namespace tidewell {
namespace {

using posix::startTime;
using test::OnRequestToEnd;
using test::RunningProgram;
using test::SampleMachine;

ProcessIdentity identityOf(const RunningProgram& program) {
    return {.id = program.processId(), .startTime = startTime(program.processId()).value()};
}

std::vector<std::int32_t> idsOf(const std::vector<RunningApplication>& applications) {
    std::vector<std::int32_t> ids;
    for (const auto& application : applications) ids.push_back(application.process.id);
    return ids;
}

class RunningApplicationsTest : public testing::Test {
 protected:
    std::string executable(std::string_view application) const {
        return test::executableOf(machine, application);
    }

    const SampleMachine machine;
};

TEST_F(RunningApplicationsTest, AreOneForEachBundleInTheOrderOfTheirStart) {
    machine.application("/Applications/Paint.app", {{"CFBundleIdentifier", "org.paint"},
                                                    {"CFBundleName", "Paint"},
                                                    {"CFBundleDisplayName", "Paint Pro"}});
    machine.application("/Applications/Agent.app",
                        {{"CFBundleIdentifier", "org.agent"}, {"LSUIElement", "1"}});
    machine.application("/Applications/Plain.app", {{"LSBackgroundOnly", "NO"}});
    const RunningProgram plain(executable("/Applications/Plain.app"));
    const RunningProgram paint(executable("/Applications/Paint.app"));
    const RunningProgram second(executable("/Applications/Paint.app"));
    const RunningProgram other(machine.path("/Applications/Paint.app/Contents/MacOS/tools/mix"));
    const RunningProgram agent(executable("/Applications/Agent.app"));
    const RunningProgram nested(
        machine.path("/Applications/Paint.app/Contents/Frameworks/Helper.app/Contents/MacOS/h"));
    const RunningProgram noBundle(machine.path("/Applications/Paint.app/Contents/Resources/run"));
    const test::TemporaryFolder elsewhere;
    const RunningProgram outside(elsewhere.path() + "/Out.app/Contents/MacOS/Out");

    const auto applications = runningApplications(machine.host());
    ASSERT_EQ(idsOf(applications), (std::vector{plain.processId(), paint.processId(),
                                                agent.processId(), nested.processId()}));
    EXPECT_EQ(applications[0].name, "Plain");
    EXPECT_EQ(applications[0].bundleIdentifier, std::nullopt);
    EXPECT_EQ(applications[0].activationPolicy, ActivationPolicy::regular);
    EXPECT_EQ(applications[1].name, "Paint Pro");
    EXPECT_EQ(applications[1].bundleIdentifier, "org.paint");
    EXPECT_EQ(applications[1].bundlePath, machine.path("/Applications/Paint.app"));
    EXPECT_EQ(applications[2].activationPolicy, ActivationPolicy::background);
    EXPECT_EQ(applications[3].name, "Helper");

    EXPECT_TRUE(isApplicationRunning(machine.host(), "org.agent"));
    EXPECT_FALSE(isApplicationRunning(machine.host(), "org.agen"));
    EXPECT_FALSE(isApplicationRunning(machine.host(), ""));
}

TEST_F(RunningApplicationsTest, AreStillSeenAfterAnUpdateAndNoLongerAfterTheirEnd) {
    const auto path = executable("/Applications/Paint.app");
    const RunningProgram paint(path);
    std::filesystem::rename(path, path + ".old");
    std::filesystem::remove(path + ".old");
    EXPECT_EQ(idsOf(runningApplications(machine.host())), (std::vector{paint.processId()}));

    ASSERT_EQ(terminate(identityOf(paint)), Termination::asked);
    paint.waitForEnd();
    EXPECT_TRUE(runningApplications(machine.host()).empty());
}

TEST_F(RunningApplicationsTest, AreListedWhileOthersComeAndGo) {
    const RunningProgram lasting(executable("/Applications/Lasting.app"));
    test::ChildProcess busy([this] {
        for (int turn = 0; turn < 60; ++turn)
            const RunningProgram brief(executable("/Applications/Brief.app"));
        return true;
    });
    for (int turn = 0; turn < 60; ++turn) {
        const auto ids = idsOf(runningApplications(machine.host()));
        ASSERT_EQ(std::ranges::count(ids, lasting.processId()), 1);
    }
    EXPECT_TRUE(busy.succeeded());
}

TEST_F(RunningApplicationsTest, AreFoundByDesktopEntriesOnTheUsersOwnMachine) {
    const auto home = machine.home();
    machine.text("~/.local/share/applications/org.example.Sketch.desktop",
                 "[Desktop Entry]\nType=Application\nName=Sketch\nIcon=sketch\nExec=\"" + home +
                     "/tools/my sketch\" %U\n[Desktop Action New]\nName=New\nExec=/bin/false\n");
    machine.text("~/.local/share/applications/a-settings.desktop",
                 "[Desktop Entry]\nType=Application\nName=Settings\nExec=\"" + home +
                     "/tools/my sketch\" --settings\n");
    machine.file("~/.local/share/icons/hicolor/scalable/apps/sketch.svg");
    machine.text(
        "~/share/applications/org.example.Sketch.desktop",
        "[Desktop Entry]\nType=Application\nName=System's\nExec=" + home + "/tools/other\n");
    machine.text("~/share/applications/kde/Show.desktop",
                 "[Desktop Entry]\nType=Application\nName=Show\nExec=show --now\n");
    machine.text("~/share/applications/hidden.desktop",
                 "[Desktop Entry]\nType=Application\nName=Hidden\nNoDisplay=true\nExec=" + home +
                     "/tools/hidden\n");
    machine.text("~/share/applications/script.desktop",
                 "[Desktop Entry]\nType=Application\nName=Script\nExec=" + home +
                     "/tools/python3.11 run.py\n");
    ::setenv("XDG_DATA_HOME", (home + "/.local/share").c_str(), 1);
    ::setenv("XDG_DATA_DIRS", (home + "/share").c_str(), 1);
    ::setenv("PATH", (home + "/tools:" + std::getenv("PATH")).c_str(), 1);
    const RunningProgram sketch(home + "/tools/my sketch");
    const RunningProgram other(home + "/tools/other");
    const RunningProgram show(home + "/tools/show");
    const RunningProgram hidden(home + "/tools/hidden");
    const RunningProgram script(home + "/tools/python3.11");

    machine.remove("~/tools/show");  // an update puts a new file in its place
    std::filesystem::copy_file("/bin/sleep", home + "/tools/show");

    const auto own = findHost({.home = home});
    ASSERT_TRUE(own.host) << own.problem;
    auto applications = runningApplications(*own.host);
    std::erase_if(applications, [](const auto& each) {
        return each.bundlePath || each.activationPolicy == ActivationPolicy::background;
    });
    ASSERT_EQ(idsOf(applications), (std::vector{sketch.processId(), show.processId()}));
    EXPECT_EQ(applications[0].name, "Sketch");
    EXPECT_EQ(applications[0].bundleIdentifier, "org.example.Sketch");
    EXPECT_EQ(applications[0].iconFile,
              machine.path("~/.local/share/icons/hicolor/scalable/apps/sketch.svg"));
    EXPECT_EQ(applications[1].bundleIdentifier, "kde-Show");

    EXPECT_TRUE(runningApplications(machine.host()).empty());
}

TEST_F(RunningApplicationsTest, AreAskedToEndOnlyByTheirOwnIdentity) {
    RunningProgram paint(executable("/Applications/Paint.app"));
    const RunningProgram stubborn(executable("/Applications/Stubborn.app"), OnRequestToEnd::ignore);
    const auto identity = identityOf(paint);
    const ProcessIdentity earlier{.id = identity.id, .startTime = identity.startTime - 1};

    EXPECT_EQ(terminate(earlier), Termination::alreadyEnded);
    EXPECT_EQ(physicalFootprint(earlier), 0);
    EXPECT_GT(physicalFootprint(identity), 0);
    EXPECT_EQ(idsOf(runningApplications(machine.host())),
              (std::vector{paint.processId(), stubborn.processId()}));

    EXPECT_EQ(terminate(identity), Termination::asked);
    paint.waitForEnd();
    EXPECT_EQ(terminate(identity), Termination::alreadyEnded);
    EXPECT_EQ(physicalFootprint(identity), 0);
    paint.kill();
    EXPECT_EQ(terminate(identity), Termination::alreadyEnded);

    EXPECT_EQ(terminate(identityOf(stubborn)), Termination::asked);
    EXPECT_EQ(idsOf(runningApplications(machine.host())), (std::vector{stubborn.processId()}));
}

TEST_F(RunningApplicationsTest, BelongToTheUserAlone) {
    if (::geteuid() != 0) GTEST_SKIP() << "only an administrator can start another user's program";
    const RunningProgram paint(executable("/Applications/Paint.app"));
    const auto identity = identityOf(paint);
    test::ChildProcess otherUser([&] {
        return ::setuid(65534) == 0 && runningApplications(machine.host()).empty() &&
               terminate(identity) == Termination::refused && physicalFootprint(identity) == 0;
    });
    EXPECT_TRUE(otherUser.succeeded());
    // Who may see every process of the machine still has applications of their own only.
    test::ChildProcess allSeeing([&] {
        return ::setresuid(65534, 0, 0) == 0 && runningApplications(machine.host()).empty();
    });
    EXPECT_TRUE(allSeeing.succeeded());
    EXPECT_EQ(startTime(paint.processId()), identity.startTime);
}

TEST(Memory, IsUsedInPart) {
    const auto memory = memoryUsage();
    EXPECT_GT(memory.used, 0);
    EXPECT_LT(memory.used, memory.total);
}

}  // namespace
}  // namespace tidewell
