#include "platform/host.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "platform/home_place.h"
#include "support/temporary_folder.h"

namespace tidewell {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

/// A home folder in a temporary folder, and an environment that says so.
class HostTest : public ::testing::Test {
 protected:
    HostTest() {
        for (const char* name : variables) {
            const char* value = std::getenv(name);
            if (value) before_[name] = value;
            ::unsetenv(name);
        }
        fs::create_directories(home + "/Documents/thesis");
        ::setenv("HOME", home.c_str(), 1);
    }
    ~HostTest() override {
        for (const char* name : variables) ::unsetenv(name);
        for (const auto& [name, value] : before_) ::setenv(name.c_str(), value.c_str(), 1);
        fs::current_path("/");
    }

    std::string made(const std::string& name, mode_t mode = 0700) const {
        const auto path = folder.path() + "/" + name;
        fs::create_directories(path);
        ::chmod(path.c_str(), mode);
        return path;
    }
    static Host found(const HostOptions& options = {}) {
        auto result = findHost(options);
        EXPECT_EQ(result.problem, "");
        return result.host.value_or(Host{});
    }
    static std::string temporaryFolderFor(const std::string& variable) {
        ::setenv("TMPDIR", variable.c_str(), 1);
        return found().temporaryDirectory;
    }

    const TemporaryFolder folder;
    const std::string home = folder.path() + "/ada";

 private:
    static constexpr const char* variables[] = {
        "HOME", "TMPDIR", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"};
    std::map<std::string, std::string> before_;
};

TEST_F(HostTest, TakesOnlyAScratchFolderOfTheUsersOwn) {
    const auto own = made("own");
    EXPECT_EQ(temporaryFolderFor(own), own);
    fs::create_directory_symlink("own", folder.path() + "/link");
    EXPECT_EQ(temporaryFolderFor(folder.path() + "/link"), own);
    EXPECT_EQ(temporaryFolderFor(made("open", 0777)), "");
    EXPECT_EQ(temporaryFolderFor(made("of a group", 0770)), "");
    EXPECT_EQ(temporaryFolderFor("/tmp"), "");
    EXPECT_EQ(temporaryFolderFor("/"), "");
    EXPECT_EQ(temporaryFolderFor(home), "");
    ::chmod(folder.path().c_str(), 0700);
    EXPECT_EQ(temporaryFolderFor(folder.path()), "") << "it holds the home folder";
    EXPECT_EQ(temporaryFolderFor(folder.path() + "/missing"), "");
    fs::current_path(home + "/Documents/thesis");
    for (const char* relative : {".", "..", "", "../thesis"})
        EXPECT_EQ(temporaryFolderFor(relative), "") << relative;
    if (::geteuid() == 0) {
        const auto foreign = made("foreign");
        ASSERT_EQ(::chown(foreign.c_str(), 12345, 12345), 0);
        EXPECT_EQ(temporaryFolderFor(foreign), "");
    }
}

TEST_F(HostTest, LeavesTheCallersScratchFolderAloneWhereAnotherHomeIsGiven) {
    ::setenv("TMPDIR", made("own").c_str(), 1);
    fs::create_directories(folder.path() + "/machine/home/ada");
    EXPECT_EQ(found({.home = home}).temporaryDirectory, "");
    EXPECT_EQ(found({.root = folder.path() + "/machine"}).temporaryDirectory, "");
}

TEST_F(HostTest, TakesThePathsBelowTheHomesOtherNameForThoseBelowIt) {
    const auto link = folder.path() + "/link";
    fs::create_directory_symlink(home, link);
    ::setenv("HOME", (link + "/").c_str(), 1);
    const auto host = found({});
    EXPECT_EQ(host.home, home);
    EXPECT_EQ(host.pathNamedInside(link + "/Games/x"), home + "/Games/x");
    EXPECT_EQ(host.throughHome(link), home);
    EXPECT_EQ(host.throughHome(link + "s/x"), link + "s/x");
}

TEST_F(HostTest, RefusesAHomeFolderThatWouldOpenTheMachine) {
    const auto machine = made("machine");
    fs::create_directories(machine + "/usr/lib");
    fs::create_directories(machine + "/home/ada");
    struct Row {
        HostOptions options;
        std::string saying;
    };
    const Row rows[] = {
        {{.home = "/"}, "does not lie below"},
        {{.home = "/usr"}, "belongs to the system"},
        {{.home = "/etc"}, "belongs to the system"},
        {{.home = "/var"}, "belongs to the system"},
        {{.home = "/usr/lib"}, "belongs to the system"},
        {{.home = home + "/missing"}, "There is no home folder"},
        {{.root = machine, .home = machine}, "does not lie below"},
        {{.root = machine, .home = machine + "/usr"}, "belongs to the system"},
        {{.root = machine, .home = machine + "/home"}, "belongs to the system"},
        {{.root = machine, .home = home}, "does not lie below"},
    };
    for (const auto& row : rows) {
        const auto result = findHost(row.options);
        EXPECT_FALSE(result.host) << *row.options.home;
        EXPECT_NE(result.problem.find(row.saying), std::string::npos) << result.problem;
    }
    for (const char* variable : {"/", ".", "ada"}) {
        ::setenv("HOME", variable, 1);
        EXPECT_FALSE(findHost({}).host) << variable;
    }
    const auto link = folder.path() + "/link";
    fs::create_directory_symlink("/usr", link);
    ::setenv("HOME", link.c_str(), 1);
    EXPECT_FALSE(findHost({}).host);
}

TEST(HomePlace, TellsHomesFromFoldersOfTheSystem) {
    for (const char* place : {"/home/ada", "/root", "/Users/ada", "/var/home/ada", "/srv/ada",
                              "/data/people/ada", "/tmp/ada", "/private/var/root", "/mnt/disk",
                              "/run/media/ada/disk", "/dev/shm/ada", "/app"})
        EXPECT_TRUE(canBeHome(place)) << place;
    for (const char* place :
         {"/", "/home", "/Users", "/usr", "/usr/share", "/var/lib/service", "/etc/skel", "/dev",
          "/run", "/opt", "/System/Volumes", "/proc/1", "/Applications/A.app", "/var/tmp", "/tmp"})
        EXPECT_FALSE(canBeHome(place)) << place;
}

TEST_F(HostTest, OnlyLooksAtAHomeOfSomebodyElse) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can give a folder away";
    EXPECT_EQ(found().homeOwner, HomeOwner::user);
    ASSERT_EQ(::chown(home.c_str(), 12345, 12345), 0);
    EXPECT_EQ(found().homeOwner, HomeOwner::somebodyElse);
}

TEST_F(HostTest, BelievesBaseFoldersOnlyWhereTheyOpenNothing) {
    const auto usual = home + "/.cache";
    const auto cacheFor = [&](const std::string& variable) {
        ::setenv("XDG_CACHE_HOME", variable.c_str(), 1);
        return found().baseFolders.cache;
    };
    fs::create_directories(home + "/.var/cache");
    fs::create_directory_symlink("Documents", home + "/papers");
    fs::create_directory_symlink("nowhere", home + "/dangling");
    EXPECT_EQ(cacheFor(home + "/.var/cache"), home + "/.var/cache");
    EXPECT_EQ(cacheFor(home + "/.still/missing"), home + "/.still/missing");
    for (const auto& refused :
         {std::string(), std::string("."), std::string(".cache2"), home, folder.path(),
          std::string("/"), std::string("/etc"), home + "/Documents", home + "/Documents/thesis",
          home + "/Videos/new", home + "/papers/cache", home + "/dangling/cache", home + "/.config",
          home + "/.config/cache", home + "/.local", home + "/.local/share", home + "/../other"})
        EXPECT_EQ(cacheFor(refused), usual) << refused;
    ::setenv("XDG_CACHE_HOME", (home + "/.var/cache").c_str(), 1);
    ::setenv("XDG_DATA_HOME", (home + "/.var").c_str(), 1);
    EXPECT_EQ(found().baseFolders.data, home + "/.local/share") << "it holds the cache";
    EXPECT_EQ(found({.home = home}).baseFolders.cache, usual);
}

TEST_F(HostTest, SeesTheSystemFromTheFoldersOfTheMachine) {
    const auto machine = made("machine");
    const auto at = [&](std::optional<System> system) {
        return HostOptions{.root = machine, .system = system};
    };
    fs::create_directories(machine + "/root");
    EXPECT_EQ(found(at({})).home, machine + "/root");
    for (const char* other : {"lost+found", "linuxbrew", ".snapshots"})
        fs::create_directories(machine + "/home/" + other);
    EXPECT_EQ(found(at({})).home, machine + "/root");
    fs::create_directories(machine + "/home/ada");
    EXPECT_EQ(found(at({})).home, machine + "/home/ada");
    EXPECT_EQ(found(at({})).system, System::linux);
    fs::create_directories(machine + "/home/bob");
    EXPECT_NE(findHost(at({})).problem.find("several home folders"), std::string::npos);
    fs::create_directories(machine + "/Users/cleo");
    fs::create_directories(machine + "/Users/Shared");
    EXPECT_EQ(found(at({})).home, machine + "/Users/cleo");
    EXPECT_EQ(found(at({})).system, System::macOS);
    fs::remove_all(machine + "/home/bob");
    EXPECT_EQ(found(at(System::linux)).home, machine + "/home/ada");
    fs::create_directories(machine + "/Users/dan");
    EXPECT_NE(findHost(at({})).problem.find("several home folders"), std::string::npos);

    EXPECT_EQ(found().system, ownSystem());
    fs::create_directories(home + "/Library/Caches");
    EXPECT_EQ(found().system, System::macOS);
    EXPECT_EQ(found({.system = System::linux}).system, System::linux);
}

TEST_F(HostTest, FindsNothingBelowARootThatLiesElsewhere) {
    const auto machine = made("machine");
    fs::create_directories(machine + "/Users/ada");
    fs::create_directories(folder.path() + "/elsewhere/folders/zz/b/T");
    fs::create_directory_symlink("../elsewhere", machine + "/var");
    const HostOptions options{.root = machine};
    EXPECT_EQ(found(options).temporaryDirectory, "");
    fs::remove(machine + "/var");
    fs::create_directories(machine + "/private/var/folders/zz/b/T");
    fs::create_directories(machine + "/private/var/folders/zz/a/T");
    fs::create_directory_symlink("private/var", machine + "/var");
    EXPECT_EQ(found(options).temporaryDirectory, machine + "/private/var/folders/zz/a/T");

    fs::create_directory_symlink("/usr", machine + "/usr");
    EXPECT_EQ(found(options).toolPath("/usr/bin/env"), "");
    fs::create_directories(machine + "/bin");
    std::ofstream(machine + "/bin/tool") << "#!/bin/sh\n";
    EXPECT_EQ(found(options).toolPath("/bin/tool"), machine + "/bin/tool");

    fs::rename(machine + "/Users", folder.path() + "/people");
    fs::create_directory_symlink("../people", machine + "/Users");
    EXPECT_FALSE(findHost(options).host);
}

TEST_F(HostTest, PlacesWhatTablesAndFilesOfTheMachineName) {
    const auto machine = made("machine");
    fs::create_directories(machine + "/home/ada");
    const auto host = found({.root = machine});
    EXPECT_EQ(host.locate("{cache}/pip"), machine + "/home/ada/.cache/pip");
    EXPECT_EQ(host.locate("{data}"), machine + "/home/ada/.local/share");
    EXPECT_EQ(host.locate("{state}/x"), machine + "/home/ada/.local/state/x");
    EXPECT_EQ(host.locate("~/{cache}"), machine + "/home/ada/{cache}");
    EXPECT_EQ(host.locate("/usr/bin"), machine + "/usr/bin");
    EXPECT_EQ(host.expand("/usr/bin"), "/usr/bin");
    EXPECT_EQ(host.pathNamedInside("/usr/bin/x"), machine + "/usr/bin/x");
    EXPECT_EQ(host.pathNamedInside(machine + "/usr/../bin"), machine + "/bin");
}

}  // namespace
}  // namespace tidewell
