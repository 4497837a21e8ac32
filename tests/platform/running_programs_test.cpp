#include "platform/running_programs.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "platform/linux/control_group.h"
#include "platform/posix/program_signs.h"
#include "support/child_process.h"
#include "support/running_program.h"
#include "support/sample_machine.h"

namespace tidewell {
namespace {

using linux_system::applicationOfGroups;
using linux_system::applicationOfUnit;
using linux_system::GroupedApplication;
using linux_system::Packaging;
using posix::lockHolder;
using test::RunningProgram;
using test::SampleMachine;

class RunningProgramsTest : public testing::Test {
 protected:
    bool runs(const ProgramSigns& program) const {
        return RunningPrograms(machine.host()).firstRunning({program}) == program.name;
    }
    std::string ownName() const {
        char name[256] = {};
        ::gethostname(name, sizeof name - 1);
        return name;
    }
    /// A lock as browsers leave it, made `age` ago.
    std::string lock(const std::string& text, std::chrono::hours age = {}) const {
        const auto path = machine.path("~/SingletonLock");
        std::filesystem::remove(path);
        std::filesystem::create_directories(machine.home());
        std::filesystem::create_symlink(text, path);
        timespec times[2] = {};
        ::clock_gettime(CLOCK_REALTIME, &times[0]);
        times[0].tv_sec -= std::chrono::seconds(age).count();
        times[1] = times[0];
        ::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW);
        return path;
    }

    const SampleMachine machine;
};

TEST_F(RunningProgramsTest, AreKnownByTheirExecutableWhereverItWasInstalled) {
    const ProgramSigns web{.name = "Web", .executables = {"web", "web-bin"}};
    const ProgramSigns other{.name = "Other", .executables = {"we", "usr", "other"}};
    EXPECT_FALSE(runs(web));
    const test::TemporaryFolder elsewhere;
    const RunningProgram outside(elsewhere.path() + "/web");
    EXPECT_FALSE(runs(web)) << "it is another machine's";
    RunningProgram snap(machine.path("/snap/web/12/usr/lib/web/web-bin"));
    EXPECT_TRUE(runs(web));
    EXPECT_FALSE(runs(other));
    EXPECT_EQ(RunningPrograms(machine.host()).firstRunning({other, web}), "Web");

    const RunningPrograms before(machine.host());
    snap.kill();
    EXPECT_EQ(before.firstRunning({web}), "Web") << "it says what ran when it looked";
    EXPECT_FALSE(runs(web));
}

TEST_F(RunningProgramsTest, AreKnownByWhatAnInterpreterWasToldOrHasOpen) {
    std::filesystem::create_directories(machine.path("/usr/bin"));
    const auto java = machine.path("/usr/bin/java");
    std::filesystem::copy_file("/bin/bash", java);
    const auto script = machine.path("/opt/idea/idea.jar");
    machine.text("/opt/idea/idea.jar", "while :; do sleep 1; done");
    const auto cache = machine.path("~/.cache/JetBrains/Idea2024.1");
    std::filesystem::create_directories(cache + "/index");
    const auto start = [&](std::vector<std::string> words) {
        return test::ChildProcess([&, words] {
            std::vector<char*> list;
            for (const auto& word : words) list.push_back(const_cast<char*>(word.c_str()));
            list.push_back(nullptr);
            ::execv(java.c_str(), list.data());
            return false;
        });
    };
    const auto waitFor = [&](const ProgramSigns& program) {
        for (int turn = 0; turn < 500; ++turn) {
            if (runs(program)) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return false;
    };
    const ProgramSigns named{.name = "IDEA", .executables = {"idea"}};
    const ProgramSigns holding{.name = "IDEA", .executables = {"x"}, .folders = {cache}};
    {
        const auto byWord = start({"java", script});
        EXPECT_TRUE(waitFor(named));
        EXPECT_FALSE(runs(holding));
    }
    machine.text("/opt/other.jar", "exec 9>" + cache + "/index/log; while :; do sleep 1; done");
    const auto byFile = start({"java", machine.path("/opt/other.jar")});
    EXPECT_TRUE(waitFor(holding));
    EXPECT_FALSE(runs(named));
    const ProgramSigns neighbour{.name = "IDEA", .folders = {cache + "/ind"}};
    EXPECT_FALSE(runs(neighbour));
}

TEST_F(RunningProgramsTest, AreKnownByALockWhoseHolderRuns) {
    RunningProgram holder(machine.path("/opt/some-electron-thing"));
    const auto id = std::to_string(holder.processId());
    const auto isLockedBy = [&](const std::string& text, std::chrono::hours age = {}) {
        return runs({.name = "Chat", .lockFiles = {lock(text, age)}});
    };
    EXPECT_TRUE(isLockedBy(ownName() + "-" + id));
    EXPECT_TRUE(isLockedBy("127.0.1.1:+" + id));
    EXPECT_FALSE(isLockedBy("not-" + ownName() + "-" + id)) << "another machine's process";
    EXPECT_FALSE(isLockedBy(ownName() + "-" + id, std::chrono::hours(1)))
        << "the number went to a younger process";
    EXPECT_FALSE(isLockedBy(ownName() + "-" + std::to_string(::getpid())))
        << "no process of this machine";
    const auto held = lock(ownName() + "-" + id);
    holder.kill();
    EXPECT_FALSE(runs({.name = "Chat", .lockFiles = {held}}));
    std::filesystem::remove(held);
    machine.text("~/SingletonLock", ownName() + "-" + id);
    EXPECT_FALSE(runs({.name = "Chat", .lockFiles = {held, machine.path("~/none")}}));
}

TEST(LockFiles, NameAProcessOrNothing) {
    EXPECT_EQ(lockHolder("my-host-42", "my-host"), 42);
    EXPECT_EQ(lockHolder("192.168.0.2:+42", "my-host"), 42);
    for (const auto* text :
         {"", "42", "-42", "my-host", "my-host-", "my-host-4x", "my-host--4", "host-42",
          "1.2.3.4:+", "1.2.3.4:42", "1.2.3.4:+0", "my-host-99999999999"})
        EXPECT_EQ(lockHolder(text, "my-host"), std::nullopt) << text;
}

TEST(ControlGroups, NameTheApplicationThatTheDesktopStarted) {
    struct Row {
        const char* unit;
        std::optional<GroupedApplication> application;
    };
    const auto entry = [](const char* id) {
        return GroupedApplication{.packaging = Packaging::desktopEntry, .id = id};
    };
    const Row rows[] = {
        {"app-gnome-org.example.Paint-1234.scope", entry("org.example.Paint")},
        {"app-org.example.Paint-1234.scope", entry("org.example.Paint")},
        {"app-org.example.Paint.scope", entry("org.example.Paint")},
        {"app-org.example.Paint@autostart.service", entry("org.example.Paint")},
        {"app-KDE-org.example.Paint@6fe1.service", entry("org.example.Paint")},
        {"app-org.example.Paint.service", entry("org.example.Paint")},
        {"app-gnome-my\\x2dpaint-77.scope", entry("my-paint")},
        {"app-flatpak-org.example.Paint-99.scope",
         GroupedApplication{.packaging = Packaging::flatpak, .id = "org.example.Paint"}},
        {"snap.paint.paint-1f2e-33.scope",
         GroupedApplication{.packaging = Packaging::snap, .id = "paint"}},
        {"app.slice", std::nullopt},
        {"app-.scope", std::nullopt},
        {"snap..scope", std::nullopt},
        {"session-2.scope", std::nullopt},
        {"app-gnome-paint", std::nullopt},
    };
    for (const auto& [unit, application] : rows)
        EXPECT_EQ(applicationOfUnit(unit), application) << unit;

    const std::string path = "/user.slice/user@1000.service/app.slice/";
    EXPECT_EQ(applicationOfGroups("0::" + path + "app-org.kde.konsole-7.scope/tab(8).scope\n"),
              entry("org.kde.konsole"));
    EXPECT_EQ(applicationOfGroups("4:memory:/x\n1:name=systemd:" + path + "app-a-7.scope\n0::/\n"),
              entry("a"));
    for (const auto* text :
         {"", "0::/", "0", "::", "4:cpu:/app-a-7.scope", "0::/system.slice/x.service"})
        EXPECT_EQ(applicationOfGroups(text), std::nullopt) << text;
}

}  // namespace
}  // namespace tidewell
